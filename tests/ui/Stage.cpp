#include "Stage.h"

#include "PMCreditCard.h"
#include "PMFieldTypes.h"
#include "PMItemFactory.h"
#include "PMUiProvider.h"
#include "PasswordStrength.h"
#include "SideWindows.h"
#include "UiSettings.h"
#include "WindowChecks.h"
#include "lock/PagesStack.h"
#include "main/MainView.h"
#include "style/Style.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QBuffer>
#include <QDate>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMetaProperty>

namespace {

using ItemValues = std::initializer_list<std::pair<const char *, QVariant>>;

void add(GPMAppCore &core, PMListItem::Type type, const ItemValues &fields)
{
    std::unique_ptr<PMListItem> item = core.modelCreateItem(type);
    for (const auto &field : fields)
        item->setProperty(field.first, field.second);
    core.modelAddItem(std::move(item));
}

PMFieldTypes::Date date(const QDate &day)
{
    return {day.year(), day.month(), day.day()};
}

struct DemoLogin
{
    const char *title;
    const char *userName;
    const char *password;
    int uses;
    bool favorite;
    const char *note = "";
};

const DemoLogin demoLogins[] = {
    {"Alpine Club", "ana.martin@example.org", "martin1984", 3, false},
    {"Bank of the North", "ana-m-4471", "q7V<m2X,8Rz!Kd", 12, true},
    {"Cloudmail", "ana.martin", "tW4:nB9pQz;r7X", 37, false,
     "Recovery codes are in the attachment.\nSecond factor on the phone."},
    {"Design Tools", "ana@studio.example", "sunshine", 1, false},
    {"Every Books", "ana.martin", "sunshine", 0, false},
    {"Ferry Tickets", "ana.martin@example.org", "Lr5%kQ2w(Hn8", 2, false},
    {"Git Forge", "anam", "03/05/1999", 21, true},
    {"Harbour Health", "AM-204118", "vY8#dM3s)Jp6", 4, false},
    {"Island Coffee", "ana.martin@example.org", "Zc9&bT4f,Gx2", 8, false}};

} // namespace

Stage::Stage(Safe safe)
{
    const int font = QFontDatabase::addApplicationFont(":/fonts/SG-R.TTF"_s);
    QApplication::setFont(
        {QFontDatabase::applicationFontFamilies(font).value(0), Style::basePointSize()});
    test.createSafe();
    if (safe == Filled || safe == Interrupted)
        fillSafe();
    if (safe == Shared)
        shareSafe();
    if (safe == Locked)
        test.core.lockCurrentSafe();
}

Stage::~Stage() = default;

void Stage::shareSafe()
{
    const QString cloud = test.folder.path() + "/cloud"_s;
    const QString others = cloud + "/family"_s;
    const QJsonObject account{{"path"_s, cloud}};
    FileLayer().writeBytes(test.folder.path() + "/info.json"_s,
                           QJsonDocument(QJsonObject{{"personal"_s, account}}).toJson());
    QDir().mkpath(others);
    GPMSafe().init(others, testPassword, "Family"_s, {});
    CloudSync &sync = test.core.cloud();
    sync.turnOn(test.core.currentSafe()->folder(), cloud);
    test.core.cloudFolders().look();
    const auto isShared = [&] {
        return sync.status().state == CloudStatus::State::Synchronised &&
               !test.core.cloudFolders().found().offers.isEmpty();
    };
    if (!QTest::qWaitFor(isShared))
        qFatal("The safe does not get into the cloud folder");
}

void Stage::attachRecoveryCodes()
{
    const std::shared_ptr<GPMSafe> &safe = test.core.currentSafe();
    std::unique_ptr<PMListItem> codes = makeItem(PMListItem::Attachment);
    codes->setTitle("recovery-codes.txt"_s);
    codes->setProperty("filename", codes->title());
    QBuffer bytes;
    bytes.setData(QByteArray(4000, 'x'));
    bytes.open(QIODevice::ReadOnly);
    const PMListItem *added = safe->addAttachment(std::move(codes), bytes);
    safe->item(id("Cloudmail"_s))->setRefs({added->id()});
}

QString Stage::id(const QString &title) const
{
    for (const PMListItem *item : test.core.currentSafe()->items()) {
        if (item->title() == title)
            return item->id();
    }
    return {};
}

void Stage::open(const Look &look)
{
    // Those of another stage, too: one of their windows would be taken for one of this.
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (top != main && top->isVisible())
            top->close();
    }
    // Windows that delete themselves do so now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (m_ui && look == m_look && main->isVisible())
        startAgain();
    else
        start(look);
    shrink(*main, false);
}

void Stage::start(const Look &look)
{
    m_ui.reset();
    m_look = look;
    theme.setDark(look.dark);
    UiSettings settings(QFileInfo(test.core.settings().filePath()).path());
    settings.setThemeMode(look.dark ? Theme::Mode::Dark : Theme::Mode::Light);
    settings.setTextPercent(look.textPercent);
    // What moves would be met half way.
    settings.setMotionOff(true);
    settings.store();
    QCoreApplication::setApplicationVersion("1.1.32"_s);
    m_ui = std::make_unique<PMUiProvider>(test.core, [] { return true; });
    m_ui->connectCore();
    m_ui->translator().translate(look.language.isEmpty() ? "en"_s : look.language, false);
    m_ui->createMainWindow();
    m_ui->openMainView({});
    m_ui->bringToFront();
    m_ui->sideWindows().updates().checker().setEndpoint(
        QUrl("https://updates.glaceron.example/check"_s));
    main = m_ui->mainWindow();
}

void Stage::startAgain()
{
    find<QLineEdit>(*main, "searchField")->clear();
    chooseCategory(1);
    chooseCategory(0);
    main->findChild<PagesStack *>()->showFirstPage();
    main->activateWindow();
}

void Stage::shrink(QWidget &window, bool narrow) const
{
    QSize size = window.minimumSize().expandedTo(window.minimumSizeHint());
    const auto *view = window.findChild<MainView *>();
    if (view && !narrow)
        size.rwidth() += view->sideBySideWidth() - view->minimumSizeHint().width();
    window.resize(size);
}

void Stage::choose(const QString &title)
{
    auto *list = find<QAbstractItemView>(*main, "itemList");
    const QAbstractItemModel &model = *list->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        if (index.data().toString() == title)
            list->setCurrentIndex(index);
    }
}

void Stage::chooseCategory(int row)
{
    auto *list = find<QAbstractItemView>(*main, "categoryList");
    list->setCurrentIndex(list->model()->index(row, 0));
}

void Stage::press(const char *button)
{
    find<QAbstractButton>(*main, button)->click();
}

QWidget *Stage::window(const char *name) const
{
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && top->objectName() == QLatin1String(name))
            return top;
    }
    return nullptr;
}

QWidget *Stage::shownBeside(QDialog *window) const
{
    window->setParent(main, window->windowFlags());
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}

void Stage::findBrowsers()
{
    const QByteArray entry =
        R"({"extensions":{"settings":{"ieciiloegilkonbpcplcagbpkoohnoib":{"manifest":)"
        R"({"name":"Glaceron Password Manager","version":"1.1.32"}}}}})";
    const QString path = test.folder.path();
    for (const char *folder : {"/usr/bin", "/home/.config/chromium/Default"})
        QDir().mkpath(path + QLatin1String(folder));
    FileLayer files;
    files.writeBytes(path + "/usr/bin/chromium"_s, "x");
    files.writeBytes(path + "/usr/bin/firefox"_s, "x");
    files.writeBytes(path + "/home/.config/chromium/Default/Preferences"_s, entry);
    BrowserWatch &watch = test.core.browsers();
    const auto found = [&watch] { return watch.browsers().size() == 2; };
    // A search that runs already may not have seen them.
    while (!found()) {
        QSignalSpy changed(&watch, &BrowserWatch::changed);
        watch.look();
        if (!changed.wait())
            qFatal("The browsers are not found");
    }
}

void Stage::fillSafe()
{
    GPMAppCore &core = test.core;
    const QDate today = QDate::currentDate();
    for (const DemoLogin &login : demoLogins) {
        const QString title = QLatin1String(login.title);
        const QString host = title.toLower().remove(QLatin1Char(' '));
        const QString password = QLatin1String(login.password);
        add(core, PMListItem::Login,
            {{"title", title},
             {"login", QLatin1String(login.userName)},
             {"secondaryText", QLatin1String(login.userName)},
             {"password", password},
             {"strength", QVariant::fromValue(static_cast<PMFieldTypes::PasswordStrength>(
                              passwordStrengthLevel(password)))},
             {"url", "https://www.%1.example/login"_s.arg(host)},
             {"useCount", login.uses},
             {"favorite", login.favorite},
             {"note", QLatin1String(login.note)}});
    }
    attachRecoveryCodes();
    add(core, PMListItem::CreditCard,
        {{"title", "Travel card"_s},
         {"bank", "Bank of the North"_s},
         {"secondaryText", "Bank of the North"_s},
         {"number", "5555 5555 5555 4444"_s},
         {"cardholder", "ANA MARTIN"_s},
         {"cardType", PMCreditCard::MasterCard},
         {"code", "123"_s},
         {"expire", QVariant::fromValue(date(today.addDays(40)))},
         {"bankPhone", QVariant::fromValue(PMFieldTypes::Phone{"44"_s, "2079 460000"_s})},
         {"useCount", 8}});
    add(core, PMListItem::BankAccount,
        {{"title", "Household"_s},
         {"bankName", "Bank of the North"_s},
         {"secondaryText", "Bank of the North"_s},
         {"name", "Ana Martin"_s},
         {"iban", "GB33 BUKB 2020 1555 5555 55"_s},
         {"pin", "4711"_s}});
    add(core, PMListItem::Identity,
        {{"title", "Ana at home"_s},
         {"secondaryText", "ana.martin@example.org"_s},
         {"firstName", "Ana"_s},
         {"lastName", "Martin"_s},
         {"birthDate", QVariant::fromValue(PMFieldTypes::Date{1984, 2, 29})},
         {"gender", QVariant::fromValue(PMFieldTypes::Gender::Female)},
         {"email", "ana.martin@example.org"_s},
         {"phone", QVariant::fromValue(PMFieldTypes::Phone{"44"_s, "7700 900123"_s})},
         {"addressLine1", "12 Harbour Street"_s},
         {"city", "Bristol"_s},
         {"zipCode", "BS1 4DJ"_s},
         {"country", "United Kingdom"_s}});
    add(core, PMListItem::Passport,
        {{"title", "Ana's passport"_s},
         {"fullName", "Ana Martin"_s},
         {"number", "533401372"_s},
         {"expireDate", QVariant::fromValue(date(today.addYears(4)))}});
    add(core, PMListItem::SSN,
        {{"title", "National insurance"_s},
         {"name", "Ana Martin"_s},
         {"number", "QQ 12 34 56 C"_s}});
    add(core, PMListItem::DriverLicense,
        {{"title", "Driving licence"_s},
         {"fullName", "Ana Martin"_s},
         {"number", "MARTI 852298 A99HB"_s},
         {"height", 171},
         {"expireDate", QVariant::fromValue(date(today.addDays(-20)))}});
    add(core, PMListItem::SecureNote,
        {{"title", "Alarm code"_s}, {"text", "Front door: the year we moved in.\nShed: none."_s}});
    add(core, PMListItem::FtpAccount,
        {{"title", "Photo archive"_s},
         {"server", "ftp.photos.example"_s},
         {"username", "ana"_s},
         {"password", "Wm3!xQ7:pLs2"_s}});
    add(core, PMListItem::SoftwareLicense,
        {{"title", "Page layout"_s},
         {"version", "7.2"_s},
         {"licenseKey", "AB12-CD34-EF56-GH78"_s}});
}

QSet<QString> Stage::ownWords() const
{
    QStringList texts{test.core.currentSafe()->name(),
                      test.core.currentSafe()->hint(),
                      test.folder.path() + "/hidden/backup passport.png"_s,
                      "work gpm"_s,
                      extensionFolder,
                      "about:debugging#/runtime/this-firefox manifest.json"_s,
                      test.folder.path() + "/cloud Family"_s,
                      QString::fromUtf8(browserExport),
                      QString::fromUtf8(unknownExport),
                      "passwords.csv safe.passid.bak"_s,
                      "Work Family family"_s,
                      "studio.example gitforge.example glaceron.example"_s,
                      newVersionText,
                      safeFolder};
    for (const PMListItem *item : test.core.currentSafe()->items()) {
        const QMetaObject &meta = *item->metaObject();
        for (int i = 0; i < meta.propertyCount(); ++i)
            texts << meta.property(i).read(item).toString();
    }
    const QStringList words = WindowChecks::latinWords(texts.join(QLatin1Char(' ')));
    return {words.begin(), words.end()};
}
