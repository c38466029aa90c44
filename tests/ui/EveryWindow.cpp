#include "EveryWindow.h"

#include "ItemListModel.h"
#include "PMBankAccount.h"
#include "PMCreditCard.h"
#include "PMDriverLicense.h"
#include "PMFtpAccount.h"
#include "PMIdentity.h"
#include "PMItemFactory.h"
#include "PMPassport.h"
#include "PMSSN.h"
#include "PMSecureNote.h"
#include "PMSoftwareLicense.h"
#include "PasswordStrength.h"
#include "attachments/AttachmentPreview.h"
#include "attachments/RenameDialog.h"
#include "dialogs/PasswordGeneratorDialog.h"
#include "health/HealthDialog.h"
#include "lock/PagesStack.h"
#include "main/ShortcutsDialog.h"
#include "settings/SettingsDialog.h"
#include "settings/SettingsTable.h"
#include "style/Style.h"
#include "wizard/ExtensionPage.h"
#include "wizard/FirstRun.h"
#include "wizard/NewSafePage.h"
#include "wizard/ReadyPage.h"
#include "wizard/SetupWizard.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBuffer>
#include <QDate>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPushButton>

namespace {

using Fields = std::initializer_list<std::pair<const char *, QVariant>>;

void add(GPMAppCore &core, PMListItem::Type type, const Fields &fields)
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
};

const DemoLogin demoLogins[] = {
    {"Alpine Club", "ana.martin@example.org", "martin1984", 3, false},
    {"Bank of the North", "ana-m-4471", "q7V<m2X,8Rz!Kd", 12, true},
    {"Cloudmail", "ana.martin", "tW4:nB9pQz;r7X", 37, false},
    {"Design Tools", "ana@studio.example", "sunshine", 1, false},
    {"Every Books", "ana.martin", "sunshine", 0, false},
    {"Ferry Tickets", "ana.martin@example.org", "Lr5%kQ2w(Hn8", 2, false},
    {"Git Forge", "anam", "03/05/1999", 21, true},
    {"Harbour Health", "AM-204118", "vY8#dM3s)Jp6", 4, false},
    {"Island Coffee", "ana.martin@example.org", "Zc9&bT4f,Gx2", 8, false}};

std::unique_ptr<QWidget> shown(std::unique_ptr<QWidget> window)
{
    window->show();
    return window;
}

std::unique_ptr<QWidget> showItem(Stage &stage, const char *title)
{
    auto window = stage.mainWindow();
    stage.choose(*window, QLatin1String(title));
    return window;
}

std::unique_ptr<QWidget> plainWindow(Stage &stage)
{
    return stage.mainWindow();
}

std::unique_ptr<QWidget> createSafeWindow(Stage &stage)
{
    auto window = stage.mainWindow();
    window->pages().showCreatePage();
    return window;
}

std::unique_ptr<QWidget> editItem(Stage &stage, const char *title)
{
    auto window = showItem(stage, title);
    find<QPushButton>(*window, "editButton")->click();
    return window;
}

std::unique_ptr<QWidget> manySelected(Stage &stage)
{
    auto window = showItem(stage, "Cloudmail");
    auto *list = find<QAbstractItemView>(*window, "itemList");
    for (int row = 0; row < 3; ++row)
        list->selectionModel()->select(list->model()->index(row, 0), QItemSelectionModel::Select);
    return window;
}

std::unique_ptr<QWidget> nothingFound(Stage &stage)
{
    auto window = stage.mainWindow();
    find<QLineEdit>(*window, "searchField")->setText(QStringLiteral("zeppelin"));
    return window;
}

std::unique_ptr<QWidget> health(Stage &stage)
{
    struct Desk
    {
        ItemListModel items;
        ItemHealth health{items};
    };
    auto desk = std::make_shared<Desk>();
    desk->items.setSafe(stage.test.core.currentSafe());
    auto window = std::make_unique<HealthDialog>(desk->health, desk->items, stage.theme, nullptr);
    if (!QTest::qWaitFor([&desk] { return desk->health.pending() == 0; }))
        return nullptr;
    // They go after the window.
    QObject::connect(window.get(), &QObject::destroyed, [desk] {});
    return shown(std::move(window));
}

/// The window of a safe that was locked while an item was edited.
std::unique_ptr<QWidget> offeredDraft(Stage &stage)
{
    auto window = editItem(stage, "Cloudmail");
    find<QLineEdit>(*window, "loginField")->setText(QStringLiteral("ana.m"));
    stage.test.core.lockCurrentSafe();
    bool loaded = false;
    const std::shared_ptr<GPMSafe> safe = stage.test.core.currentSafe();
    const auto connection = QObject::connect(&safe->drafts(), &DraftStore::loaded, window.get(),
                                             [&loaded] { loaded = true; });
    if (!safe->unlock(testPassword) || !QTest::qWaitFor([&loaded] { return loaded; }))
        qFatal("The draft is not offered");
    QObject::disconnect(connection);
    return window;
}

std::unique_ptr<QWidget> preview(Stage &stage, const char *name, const QByteArray &bytes)
{
    return shown(std::make_unique<AttachmentPreview>(QLatin1String(name), PreviewContent::of(bytes),
                                                     stage.theme, nullptr));
}

std::unique_ptr<QWidget> textPreview(Stage &stage)
{
    return preview(stage, "recovery-codes.txt", "4711-0815\n1234-5678\n2718-2818\n3141-5926\n");
}

std::unique_ptr<QWidget> picturePreview(Stage &stage)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage(QStringLiteral(":/splash.png")).save(&buffer, "PNG");
    return preview(stage, "passport.png", bytes);
}

std::unique_ptr<QWidget> renameDialog(Stage &stage)
{
    return shown(
        std::make_unique<RenameDialog>(QStringLiteral("recovery-codes.txt"), stage.theme, nullptr));
}

std::unique_ptr<QWidget> shortcuts(Stage &stage)
{
    return shown(std::make_unique<ShortcutsDialog>(stage.theme, nullptr));
}

std::unique_ptr<QWidget> question(Stage &)
{
    return shown(std::make_unique<QuestionDialog>(
        Question{QStringLiteral("The object has been modified"),
                 QStringLiteral("You have not saved changes yet"),
                 {QStringLiteral("Save"), QStringLiteral("Discard changes"),
                  QStringLiteral("Continue editing")}},
        nullptr));
}

std::unique_ptr<QWidget> generator(Stage &stage)
{
    // The same password each time, in pictures too.
    const RandomBytes fixed = [](unsigned char *buffer, int size) {
        for (int i = 0; i < size; ++i)
            buffer[i] = static_cast<unsigned char>(i * 89 + 7);
        return true;
    };
    stage.recent.setKeeping(true);
    stage.uiSettings.setPasswordShape(QStringLiteral("PasswordGenerator"), {14, 3});
    auto dialog = std::make_unique<PasswordGeneratorDialog>(
        PasswordGeneratorDialog::Parts{stage.uiSettings, stage.test.core.settings(),
                                       stage.test.core.clipboard(), stage.recent, fixed},
        stage.theme, nullptr);
    dialog->setTarget({[](const QString &) {}, [] { return QString(); }});
    return shown(std::move(dialog));
}

std::unique_ptr<QWidget> recentPasswords(Stage &stage)
{
    auto dialog = generator(stage);
    find<QPushButton>(*dialog, "copyButton")->click();
    find<QAbstractButton>(*dialog, "regenerateButton")->click();
    find<QPushButton>(*dialog, "recentButton")->click();
    return dialog;
}

/// A step of the wizard of the first start.
std::function<std::unique_ptr<QWidget>(Stage &)> wizardStep(const char *id)
{
    return [id](Stage &stage) {
        const auto always = [] { return true; };
        const auto row = [&](const char *name, const QString &title, const auto &make) {
            return WizardStep{name, title, QString(), always, make};
        };
        ExtensionPage::Parts parts{QStringLiteral("/opt/glaceron/extension"), [] { return false; },
                                   [](const QString &) {}};
        auto wizard = std::make_unique<SetupWizard>(
            QVector<WizardStep>{
                row("safe", FirstRun::tr("Create a safe"),
                    [&stage](QWidget *parent) {
                        return new NewSafePage(stage.test.core, stage.theme, parent);
                    }),
                row("extension", FirstRun::tr("Fill forms in your browser"),
                    [parts](QWidget *parent) { return new ExtensionPage(parts, parent); }),
                row("ready", FirstRun::tr("You are ready"),
                    [](QWidget *parent) { return new ReadyPage(parent); })},
            stage.theme, nullptr);
        wizard->goTo(QLatin1String(id));
        return shown(std::move(wizard));
    };
}

std::function<std::unique_ptr<QWidget>(Stage &)> settingsPage(Setting::Page page)
{
    return [page](Stage &stage) {
        stage.test.core.settings().setBackupPath(QStringLiteral("/home/ana/Backups"));
        stage.uiSettings.setTabIndex(QStringLiteral("SettingsDialog"), page);
        const SettingsTable table(
            {stage.test.core.settings(), stage.uiSettings, stage.theme, stage.translator, {}, {}});
        return shown(std::make_unique<SettingsDialog>(table.settings(), stage.uiSettings,
                                                      stage.theme, nullptr));
    };
}

/// The windows that show an item, or edit it, differ in the item alone.
std::function<std::unique_ptr<QWidget>(Stage &)>
itemCase(std::unique_ptr<QWidget> (*show)(Stage &, const char *), const char *title)
{
    return [show, title](Stage &stage) { return show(stage, title); };
}

} // namespace

Stage::Stage(Safe safe)
    : uiSettings(test.folder.path())
    , translator(QCoreApplication::applicationDirPath())
{
    const int font = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/SG-R.TTF"));
    QApplication::setFont(
        {QFontDatabase::applicationFontFamilies(font).value(0), Style::basePointSize()});
    // What moves would be met half way.
    theme.setReducedMotion(true);
    theme.apply();
    test.createSafe();
    if (safe == Filled)
        fillSafe();
    if (safe == Locked)
        test.core.lockCurrentSafe();
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
             {"url", QStringLiteral("https://www.%1.example/login").arg(host)},
             {"useCount", login.uses},
             {"favorite", login.favorite}});
    }
    if (PMListItem *mail = core.currentSafe()->item(id(QStringLiteral("Cloudmail"))))
        mail->setNote(QStringLiteral("Recovery codes are in the attachment.\nSecond factor on the "
                                     "phone."));
    attachRecoveryCodes();
    add(core, PMListItem::CreditCard,
        {{"title", QStringLiteral("Travel card")},
         {"bank", QStringLiteral("Bank of the North")},
         {"secondaryText", QStringLiteral("Bank of the North")},
         {"number", QStringLiteral("5555 5555 5555 4444")},
         {"cardholder", QStringLiteral("ANA MARTIN")},
         {"cardType", PMCreditCard::MasterCard},
         {"code", QStringLiteral("123")},
         {"expire", QVariant::fromValue(date(today.addDays(40)))},
         {"bankPhone", QVariant::fromValue(PMFieldTypes::Phone{QStringLiteral("44"),
                                                               QStringLiteral("2079 460000")})},
         {"useCount", 8}});
    add(core, PMListItem::BankAccount,
        {{"title", QStringLiteral("Household")},
         {"bankName", QStringLiteral("Bank of the North")},
         {"secondaryText", QStringLiteral("Bank of the North")},
         {"name", QStringLiteral("Ana Martin")},
         {"iban", QStringLiteral("GB33 BUKB 2020 1555 5555 55")},
         {"pin", QStringLiteral("4711")}});
    add(core, PMListItem::Identity,
        {{"title", QStringLiteral("Ana at home")},
         {"secondaryText", QStringLiteral("ana.martin@example.org")},
         {"firstName", QStringLiteral("Ana")},
         {"lastName", QStringLiteral("Martin")},
         {"birthDate", QVariant::fromValue(PMFieldTypes::Date{1984, 2, 29})},
         {"gender", QVariant::fromValue(PMFieldTypes::Gender::Female)},
         {"email", QStringLiteral("ana.martin@example.org")},
         {"phone", QVariant::fromValue(
                       PMFieldTypes::Phone{QStringLiteral("44"), QStringLiteral("7700 900123")})},
         {"addressLine1", QStringLiteral("12 Harbour Street")},
         {"city", QStringLiteral("Bristol")},
         {"zipCode", QStringLiteral("BS1 4DJ")},
         {"country", QStringLiteral("United Kingdom")}});
    add(core, PMListItem::Passport,
        {{"title", QStringLiteral("Ana's passport")},
         {"fullName", QStringLiteral("Ana Martin")},
         {"number", QStringLiteral("533401372")},
         {"expireDate", QVariant::fromValue(date(today.addYears(4)))}});
    add(core, PMListItem::SSN,
        {{"title", QStringLiteral("National insurance")},
         {"name", QStringLiteral("Ana Martin")},
         {"number", QStringLiteral("QQ 12 34 56 C")}});
    add(core, PMListItem::DriverLicense,
        {{"title", QStringLiteral("Driving licence")},
         {"fullName", QStringLiteral("Ana Martin")},
         {"number", QStringLiteral("MARTI 852298 A99HB")},
         {"height", 171},
         {"expireDate", QVariant::fromValue(date(today.addDays(-20)))}});
    add(core, PMListItem::SecureNote,
        {{"title", QStringLiteral("Alarm code")},
         {"text", QStringLiteral("Front door: the year we moved in.\nShed: none.")}});
    add(core, PMListItem::FtpAccount,
        {{"title", QStringLiteral("Photo archive")},
         {"server", QStringLiteral("ftp.photos.example")},
         {"username", QStringLiteral("ana")},
         {"password", QStringLiteral("Wm3!xQ7:pLs2")}});
    add(core, PMListItem::SoftwareLicense,
        {{"title", QStringLiteral("Page layout")},
         {"version", QStringLiteral("7.2")},
         {"licenseKey", QStringLiteral("AB12-CD34-EF56-GH78")}});
}

void Stage::attachRecoveryCodes()
{
    const std::shared_ptr<GPMSafe> &safe = test.core.currentSafe();
    std::unique_ptr<PMListItem> codes = makeItem(PMListItem::Attachment);
    codes->setTitle(QStringLiteral("recovery-codes.txt"));
    codes->setProperty("filename", codes->title());
    QBuffer bytes;
    bytes.setData(QByteArray(4000, 'x'));
    bytes.open(QIODevice::ReadOnly);
    const PMListItem *added = safe->addAttachment(std::move(codes), bytes);
    safe->item(id(QStringLiteral("Cloudmail")))->setRefs({added->id()});
}

std::unique_ptr<SecureWindow> Stage::mainWindow()
{
    auto window = std::make_unique<SecureWindow>(test.core, theme, new MainView(test.core, theme));
    window->pages().showFirstPage();
    window->show();
    window->activateWindow();
    return window;
}

QString Stage::id(const QString &title) const
{
    for (const PMListItem *item : test.core.currentSafe()->items()) {
        if (item->title() == title)
            return item->id();
    }
    return {};
}

void Stage::choose(QWidget &window, const QString &title) const
{
    auto *list = find<QAbstractItemView>(window, "itemList");
    const QAbstractItemModel &model = *list->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        if (index.data().toString() == title)
            list->setCurrentIndex(index);
    }
}

const QVector<WindowCase> &everyWindow()
{
    static const QVector<WindowCase> cases{
        {"lock", plainWindow, Stage::Locked},
        {"create-safe", createSafeWindow, Stage::Locked},
        {"empty-safe", plainWindow, Stage::Empty},
        {"main", itemCase(showItem, "Cloudmail")},
        {"card", itemCase(showItem, "Travel card")},
        {"bank-account", itemCase(showItem, "Household")},
        {"identity", itemCase(showItem, "Ana at home")},
        {"passport", itemCase(showItem, "Ana's passport")},
        {"driver-licence", itemCase(showItem, "Driving licence")},
        {"edit-login", itemCase(editItem, "Cloudmail")},
        {"many-selected", manySelected},
        {"nothing-found", nothingFound},
        {"edit-card", itemCase(editItem, "Travel card")},
        {"edit-bank-account", itemCase(editItem, "Household")},
        {"edit-identity", itemCase(editItem, "Ana at home")},
        {"edit-driver-licence", itemCase(editItem, "Driving licence")},
        {"edit-note", itemCase(editItem, "Alarm code")},
        {"health", health},
        {"draft-offered", offeredDraft},
        {"attachment-text", textPreview},
        {"attachment-picture", picturePreview},
        {"attachment-rename", renameDialog},
        {"shortcuts", shortcuts},
        {"question", question},
        {"generator", generator},
        {"generator-recent", recentPasswords},
        {"wizard-safe", wizardStep("safe"), Stage::Locked},
        {"wizard-extension", wizardStep("extension"), Stage::Empty},
        {"wizard-ready", wizardStep("ready"), Stage::Empty},
        {"settings-general", settingsPage(Setting::General)},
        {"settings-security", settingsPage(Setting::Security)},
        {"settings-browser", settingsPage(Setting::Browser)},
        {"settings-backup", settingsPage(Setting::Backup)},
        {"settings-hotkeys", settingsPage(Setting::Hotkeys)},
        {"settings-appearance", settingsPage(Setting::Appearance)}};
    return cases;
}
