#include "EveryWindow.h"

#include "PMCreditCard.h"
#include "PMFieldTypes.h"
#include "PMItemFactory.h"
#include "PMUiProvider.h"
#include "PasswordStrength.h"
#include "SideWindows.h"
#include "UiSettings.h"
#include "WindowChecks.h"
#include "attachments/AttachmentPreview.h"
#include "attachments/RenameDialog.h"
#include "browsers/InstallSteps.h"
#include "cloud/CloudPasswordDialog.h"
#include "dialogs/ProgressDialog.h"
#include "lock/PagesStack.h"
#include "main/ItemPane.h"
#include "main/MainView.h"
#include "main/SafeMenu.h"
#include "main/ShortcutsDialog.h"
#include "movein/MoveInDialog.h"
#include "safes/ArchiveDesk.h"
#include "safes/DeleteSafeDialog.h"
#include "safes/SafesDialog.h"
#include "style/Style.h"
#include "wizard/FirstRun.h"
#include "wizard/NewSafePage.h"
#include "wizard/SetupWizard.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QBuffer>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaProperty>
#include <QProgressBar>

namespace {

const QString safeFolder = "/home/ana/safes/personal"_s;
const QString newVersionText = "Opening a large safe takes half the time.\n"
                               "Cards are filled into forms in parts."_s;
const QString extensionFolder = "/opt/glaceron/extension"_s;

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

using Show = std::function<QWidget *(Stage &)>;

QWidget *mainWindow(Stage &stage)
{
    return stage.main;
}

Show item(const char *title)
{
    return [title](Stage &stage) {
        stage.choose(QLatin1String(title));
        return stage.main;
    };
}

Show editor(const char *title)
{
    return [title](Stage &stage) {
        stage.choose(QLatin1String(title));
        stage.press("editButton");
        return stage.main;
    };
}

/// The window that a button of the main one opens.
Show opened(const char *button, const char *window)
{
    return [button, window](Stage &stage) {
        stage.press(button);
        return stage.window(window);
    };
}

Show settingsPage(int page)
{
    return [page](Stage &stage) {
        stage.press("settingsButton");
        QWidget *settings = stage.window("SettingsDialog");
        find<QListWidget>(*settings, "settingsPages")->setCurrentRow(page);
        return settings;
    };
}

/// The settings of backups after one was made.
QWidget *backupSettings(Stage &stage)
{
    Backups &backups = stage.test.core.backups();
    bool done = false;
    const auto connection =
        QObject::connect(&backups, &Backups::finished, stage.main, [&done] { done = true; });
    backups.backUpNow();
    QWidget *settings = settingsPage(3)(stage);
    const auto *next = find<QLabel>(*settings, "backupHeadline");
    const QString before = next->text();
    if (!QTest::qWaitFor([&] { return done && next->text().contains(QLatin1Char(':')); }))
        return nullptr;
    QObject::disconnect(connection);
    return settings;
}

QWidget *changePassword(Stage &stage)
{
    Q_EMIT stage.main->findChild<MainView *>()->changePasswordRequested();
    return stage.window("changePasswordDialog");
}

/// The entries of a change, some of them wrong.
QWidget *changePasswordFaults(Stage &stage)
{
    QWidget *window = changePassword(stage);
    QTest::keyClicks(find<QLineEdit>(*window, "oldPassword"), "not it"_s);
    QTest::keyClicks(find<QLineEdit>(*window, "newPassword"), "walnut 7 harbour"_s);
    find<QAbstractButton>(*window, "changeButton")->click();
    return window;
}

/// What is said when the password is changed.
QWidget *passwordChanged(Stage &stage)
{
    const QLatin1String next("walnut 7 harbour");
    QWidget *window = changePassword(stage);
    const std::shared_ptr<GPMSafe> safe = stage.test.core.currentSafe();
    const QString former = safe->isPassword(next) ? next : testPassword;
    const QString latter = former == next ? testPassword : next;
    QTest::keyClicks(find<QLineEdit>(*window, "oldPassword"), former);
    QTest::keyClicks(find<QLineEdit>(*window, "newPassword"), latter);
    QTest::keyClicks(find<QLineEdit>(*window, "confirmPassword"), latter);
    find<QAbstractButton>(*window, "changeButton")->click();
    QWidget *progress = stage.window("progressDialog");
    const auto *bar = find<QProgressBar>(*progress, "progressBar");
    return QTest::qWaitFor([bar] { return !bar->isVisible(); }, 30000) ? progress : nullptr;
}

/// What is said of a safe whose change of password was interrupted.
QWidget *passwordChangeInterrupted(Stage &stage)
{
    GPMAppCore &core = stage.test.core;
    const std::shared_ptr<GPMSafe> safe = core.currentSafe();
    core.lockCurrentSafe();
    const QDir folder(safe->folder());
    const QString left[] = {folder.filePath("safe.passid.bak"_s),
                            folder.filePath("content/00000000-0000-0001-0000-000000001234"_s)};
    for (const QString &path : left) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write("of another password") < 0)
            return nullptr;
    }
    core.unlockCurrentSafe(testPassword);
    const bool told =
        QTest::qWaitFor([&stage] { return stage.window("progressDialog") != nullptr; }, 30000);
    // For those who come behind.
    for (const QString &path : left)
        QFile::remove(path);
    safe->lock();
    return safe->unlock(testPassword) && told ? stage.window("progressDialog") : nullptr;
}

/// What an earlier case restored would be backed up and listed, too.
void dropRestored(Stage &stage)
{
    GPMAppCore &core = stage.test.core;
    const QString kept = core.currentSafe()->folder();
    for (const KnownSafes::Entry &safe : core.knownSafes().entries()) {
        if (safe.folder != kept)
            QDir(safe.folder).removeRecursively();
    }
    core.settings().setRecentList({kept});
    QDir(core.backups().folder()).removeRecursively();
}

QWidget *restoreList(Stage &stage)
{
    dropRestored(stage);
    const QDir folder(stage.test.core.backups().folder());
    folder.mkpath("."_s);
    QFile damaged(folder.filePath("work_20260304_19b0a.gpm"_s));
    if (!damaged.open(QIODevice::WriteOnly) || damaged.write("PK\3\4 and no more") < 0)
        return nullptr;
    damaged.close();
    if (!backupSettings(stage))
        return nullptr;
    stage.window("SettingsDialog")->close();
    stage.main->findChild<PagesStack *>()->restoreRequested();
    QWidget *window = stage.window("restoreDialog");
    auto *list = find<QListWidget>(*window, "backupList");
    return QTest::qWaitFor([list] { return list->count() > 1; }) ? window : nullptr;
}

/// What is said when a backup is a safe again.
QWidget *restored(Stage &stage)
{
    QWidget *list = restoreList(stage);
    if (!list)
        return nullptr;
    find<QAbstractButton>(*list, "restoreButton")->click();
    QWidget *window = stage.window("progressDialog");
    const auto *way = find<QAbstractButton>(*window, "wayButton");
    return QTest::qWaitFor([way] { return way->isVisible(); }) ? window : nullptr;
}

Show search(const char *words)
{
    return [words](Stage &stage) {
        find<QLineEdit>(*stage.main, "searchField")->setText(QLatin1String(words));
        // What was shown of the selection goes a moment after the list.
        const auto *pane = stage.main->findChild<ItemPane *>();
        const bool follows =
            QTest::qWaitFor([pane] { return pane->isVisible() && pane->shownId().isEmpty(); });
        return follows ? stage.main : nullptr;
    };
}

QWidget *createSafePage(Stage &stage)
{
    stage.main->findChild<PagesStack *>()->showCreatePage();
    return stage.main;
}

QWidget *manySelected(Stage &stage)
{
    find<QAbstractItemView>(*stage.main, "itemList")->selectAll();
    return stage.main;
}

QWidget *recentPasswords(Stage &stage)
{
    stage.press("generatorButton");
    QWidget *generator = stage.window("PasswordGenerator");
    find<QAbstractButton>(*generator, "recentButton")->click();
    return generator;
}

/// The window of a safe that was locked while an item was edited.
QWidget *offeredDraft(Stage &stage)
{
    stage.choose("Cloudmail"_s);
    stage.press("editButton");
    find<QLineEdit>(*stage.main, "loginField")->setText("ana.m"_s);
    stage.test.core.lockCurrentSafe();
    bool loaded = false;
    const std::shared_ptr<GPMSafe> safe = stage.test.core.currentSafe();
    const auto connection = QObject::connect(&safe->drafts(), &DraftStore::loaded, stage.main,
                                             [&loaded] { loaded = true; });
    if (!safe->unlock(testPassword) || !QTest::qWaitFor([&loaded] { return loaded; }))
        return nullptr;
    QObject::disconnect(connection);
    return stage.main;
}

QWidget *shownBeside(Stage &stage, QDialog *window)
{
    window->setParent(stage.main, window->windowFlags());
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}

/// A step of the wizard of the first start, as it is with a safe.
Show wizardStep(const char *id)
{
    return [id](Stage &stage) -> QWidget * {
        stage.findBrowsers();
        Q_EMIT stage.main->findChild<MainView *>()->setUpRequested();
        auto *wizard = qobject_cast<SetupWizard *>(stage.window("SetupWizard"));
        if (!wizard)
            return nullptr;
        wizard->goTo(QLatin1String(id));
        return wizard->step() == QLatin1String(id) ? wizard : nullptr;
    };
}

/// The step that exists as long as there is no safe.
QWidget *wizardSafe(Stage &stage)
{
    const WizardStep step{
        "safe", FirstRun::tr("Create a safe"),
        FirstRun::tr(
            "It keeps your passwords. Only you know its password, and it cannot be recovered."),
        [] { return true; },
        [&stage](QWidget *parent) {
            return new NewSafePage(stage.test.core, stage.theme, parent, {[] {}, [] {}});
        }};
    return shownBeside(stage, new SetupWizard({step}, stage.theme, stage.main));
}

QWidget *preview(Stage &stage, const char *name, const QByteArray &bytes)
{
    return shownBeside(stage, new AttachmentPreview(QLatin1String(name), PreviewContent::of(bytes),
                                                    stage.theme, stage.main));
}

QWidget *textPreview(Stage &stage)
{
    return preview(stage, "recovery-codes.txt", "4711-0815\n1234-5678\n2718-2818\n3141-5926\n");
}

QWidget *picturePreview(Stage &stage)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage(":/splash.png"_s).save(&buffer, "PNG");
    return preview(stage, "passport.png", bytes);
}

QWidget *renameDialog(Stage &stage)
{
    return shownBeside(stage, new RenameDialog("recovery-codes.txt"_s, stage.theme, stage.main));
}

/// What is offered after something was typed into a page.
Show savedLogin(const char *url, const char *title, const char *userName)
{
    return [=](Stage &stage) -> QWidget * {
        // What an earlier case left.
        stage.test.core.loginSaving().clear();
        stage.test.core.saveLogin({}, {{"title"_s, QLatin1String(title)},
                                       {"url"_s, QLatin1String(url)},
                                       {"login"_s, QLatin1String(userName)},
                                       {"password"_s, "harbour-7-tin"_s}});
        return stage.window("saveLoginDialog");
    };
}

/// The list of safes: the open one, one in the cloud folder, and one that has gone.
QWidget *safeList(Stage &stage)
{
    KnownSafes &known = stage.test.core.knownSafes();
    const QString work = stage.test.folder.filePath("work"_s);
    const QString family = "/media/ana/stick/family"_s;
    const QString personal = stage.test.core.currentSafe()->folder();
    if (known.listed(work).isEmpty()) {
        known.create("Work"_s, testPassword, "w"_s, work);
        known.facts().change(work, [](SafeFact &fact) {
            fact.itemCount = 61;
            fact.lastOpened = QDateTime::currentDateTimeUtc().addDays(-3);
            fact.mirrorFolder = "/cloud/work"_s;
            fact.lastSynchronised = QDateTime::currentDateTimeUtc().addDays(-1);
        });
        known.facts().change(family, [](SafeFact &fact) { fact.name = "Family"_s; });
    }
    stage.test.core.settings().setRecentList({personal, work, family});
    // What an earlier case restored is none of them.
    for (const KnownSafes::Entry &entry : known.entries()) {
        if (entry.folder != personal && entry.folder != work)
            QDir(entry.folder).removeRecursively();
    }
    Q_EMIT stage.main->findChild<SafeMenu *>()->safesRequested();
    auto *list = qobject_cast<SafesDialog *>(stage.window("safesDialog"));
    return QTest::qWaitFor([list] { return !list->isReading(); }) ? list : nullptr;
}

QWidget *deleteSafe(Stage &stage)
{
    SafeInfo safe;
    safe.name = stage.test.core.currentSafe()->name();
    safe.folder = safeFolder;
    return shownBeside(stage, new DeleteSafeDialog(safe, {}, stage.theme, stage.main));
}

QWidget *progress(Stage &stage)
{
    auto *dialog = new ProgressDialog(
        ArchiveDesk::tr("Export safe"),
        ArchiveDesk::tr("Exporting “%1”…").arg(stage.test.core.currentSafe()->name()), stage.theme,
        stage.main);
    dialog->setProgress(2, 3);
    // Else it would wait for the work to end, in front of the windows to come.
    QObject::connect(dialog, &ProgressDialog::cancelRequested, dialog, &ProgressDialog::finish);
    return shownBeside(stage, dialog);
}

QWidget *shortcuts(Stage &stage)
{
    return shownBeside(stage, new ShortcutsDialog(stage.theme, stage.main));
}

MoveInDialog *moveIn(Stage &stage)
{
    Q_EMIT stage.main->findChild<MainView *>()->safeMenu().bringOverRequested();
    return qobject_cast<MoveInDialog *>(stage.window("moveInDialog"));
}

/// The window that brings passwords over, when a file was chosen and a control of the next page is
/// there.
Show moveInFile(const QByteArray &bytes, const char *control)
{
    return [bytes, control](Stage &stage) {
        MoveInDialog *dialog = moveIn(stage);
        QFile file(stage.test.folder.filePath("passwords.csv"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("Can't write a file");
        file.close();
        dialog->readFile(file.fileName());
        const auto *shown = find<QWidget>(*dialog, control);
        if (!QTest::qWaitFor([shown] { return shown->isVisible(); }))
            return static_cast<MoveInDialog *>(nullptr);
        return dialog;
    };
}

const QByteArray unknownExport = "Konto;Website;Login;Password\nx;y;z;1\n";

const QByteArray browserExport = "name,url,username,password,note\r\n"
                                 "Alpine Shop,https://alpine.example,ana.martin,q7V2X8RzKd,\r\n"
                                 "Letters,https://mail.letters.example,ana.martin,tW4nB9pQz7,\r\n"
                                 "Cloudmail,https://www.cloudmail.example/login,ana.martin,"
                                 "tW4:nB9pQz;r7X,\r\n"
                                 "Git Forge,https://gitforge.example,anam,Lr5kQ2wHn8,\r\n"
                                 "Bank of the South,https://south.example,ana-m-4471,vY8dM3s,\r\n"
                                 ",android://key@com.shop/,,Zc9bT4fGx2,\r\n";

QWidget *moveInEnd(Stage &stage)
{
    QWidget *dialog = moveInFile(browserExport, "addButton")(stage);
    if (!dialog)
        return nullptr;
    QSignalSpy added(stage.test.core.currentSafe().get(), &GPMSafe::itemAdded);
    find<QAbstractButton>(*dialog, "addButton")->click();
    const auto *close = find<QWidget>(*dialog, "closeMoveInButton");
    if (!QTest::qWaitFor([close] { return close->isVisible(); }))
        return nullptr;
    // The safe is that of the other windows, too.
    QStringList ids;
    for (const QVariantList &arguments : added)
        ids << arguments.first().toString();
    stage.test.core.modelItemsPurged(ids);
    return dialog;
}

QWidget *exportDialog(Stage &stage)
{
    manySelected(stage);
    stage.press("exportSelectedButton");
    return stage.window("exportDialog");
}

QWidget *question(Stage &stage)
{
    auto *dialog = new QuestionDialog(
        {ItemPane::tr("The object has been modified"),
         ItemPane::tr("You have not saved changes yet"),
         {ItemPane::tr("Save"), ItemPane::tr("Discard changes"), ItemPane::tr("Continue editing")}},
        stage.main);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    return dialog;
}

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

namespace {

QWidget *cloudImport(Stage &stage)
{
    QWidget *settings = settingsPage(4)(stage);
    find<QAbstractButton>(*settings, "cloudImportButton")->click();
    return stage.window("cloudImportDialog");
}

/// The question whether an extension may connect.
QWidget *approval(Stage &stage)
{
    const QString origin = "moz-extension://0c4e5b2e-1f0c-4a3f-9a53-33d8b7a5d6c1"_s;
    OriginApprovals &approvals = stage.test.core.approvals();
    // As if no earlier case had asked.
    approvals.approve(origin);
    stage.test.core.linkSettings().setApprovedOrigins({});
    approvals.ask(origin);
    return QTest::qWaitFor([&stage] { return stage.window("questionDialog"); })
               ? stage.window("questionDialog")
               : nullptr;
}

QWidget *browserSettings(Stage &stage)
{
    QWidget *settings = settingsPage(2)(stage);
    stage.findBrowsers();
    return settings;
}

Show installSteps(const char *kind, const char *name)
{
    return [kind, name](Stage &stage) {
        BrowserInfo browser;
        browser.kind = QLatin1String(kind);
        browser.name = QLatin1String(name);
        InstallWays ways;
        ways.folder = [](bool) { return extensionFolder; };
        return shownBeside(stage, new InstallSteps(browser, ways, stage.theme, stage.main));
    };
}

QWidget *newVersion(Stage &stage)
{
    const UpdateNews news{"1.2.0"_s, QUrl("https://glaceron.example/download"_s), newVersionText};
    return shownBeside(stage, new NewVersionDialog(news, "1.1.32"_s, stage.theme, stage.main));
}

QWidget *cloudPassword(Stage &stage)
{
    auto *dialog = new CloudPasswordDialog(
        stage.test.core.cloud(), stage.test.core.currentSafe()->name(), stage.theme, stage.main);
    return shownBeside(stage, dialog);
}

} // namespace

namespace {

Show quickAccess(QuickAccessWish::Section section)
{
    return [section](Stage &stage) {
        QuickAccessWish wish;
        wish.section = section;
        wish.url = "https://mail.cloudmail.example/"_s;
        Q_EMIT stage.test.core.requestQuickAccess(wish);
        return stage.window("quickAccess");
    };
}

} // namespace

const QVector<WindowCase> &everyWindow()
{
    using Section = QuickAccessWish::Section;
    static const QVector<WindowCase> cases{
        {"lock", mainWindow, Stage::Locked},
        {"create-safe", createSafePage, Stage::Locked},
        {"empty-safe", mainWindow, Stage::Empty},
        {"main", item("Cloudmail")},
        {"card", item("Travel card")},
        {"bank-account", item("Household")},
        {"identity", item("Ana at home")},
        {"passport", item("Ana's passport")},
        {"social-security", item("National insurance")},
        {"driver-licence", item("Driving licence")},
        {"note", item("Alarm code")},
        {"ftp-account", item("Photo archive")},
        {"software-licence", item("Page layout")},
        {"edit-login", editor("Cloudmail")},
        {"edit-card", editor("Travel card")},
        {"edit-bank-account", editor("Household")},
        {"edit-identity", editor("Ana at home")},
        {"edit-passport", editor("Ana's passport")},
        {"edit-social-security", editor("National insurance")},
        {"edit-driver-licence", editor("Driving licence")},
        {"edit-note", editor("Alarm code")},
        {"edit-ftp-account", editor("Photo archive")},
        {"edit-software-licence", editor("Page layout")},
        {"selection", manySelected},
        {"nothing-found", search("quite another thing")},
        {"generator", opened("generatorButton", "PasswordGenerator")},
        {"generator-recent", recentPasswords},
        {"health", opened("healthButton", "healthDialog")},
        {"draft-offered", offeredDraft, Stage::Interrupted},
        {"attachment-text", textPreview},
        {"attachment-picture", picturePreview},
        {"attachment-rename", renameDialog},
        {"settings-general", settingsPage(0)},
        {"settings-security", settingsPage(1)},
        {"settings-browser", browserSettings},
        {"settings-backup", backupSettings},
        {"restore", restoreList},
        {"restored", restored},
        {"change-password", changePassword},
        {"change-password-faults", changePasswordFaults},
        {"password-changed", passwordChanged},
        {"password-change-interrupted", passwordChangeInterrupted, Stage::Empty},
        {"settings-cloud", settingsPage(4), Stage::Shared},
        {"settings-hotkeys", settingsPage(5)},
        {"settings-appearance", settingsPage(6)},
        {"cloud-safe", mainWindow, Stage::Shared},
        {"cloud-import", cloudImport, Stage::Shared},
        {"cloud-password", cloudPassword, Stage::Shared},
        {"wizard-language", wizardStep("language")},
        {"wizard-safe", wizardSafe, Stage::Locked},
        {"wizard-move-in", wizardStep("move-in")},
        {"wizard-extension", wizardStep("extension")},
        {"wizard-ready", wizardStep("ready")},
        {"move-in", moveIn},
        {"move-in-columns", moveInFile(unknownExport, "useColumnsButton")},
        {"move-in-preview", moveInFile(browserExport, "addButton")},
        {"move-in-end", moveInEnd},
        {"export", exportDialog},
        {"safes", safeList},
        {"safe-delete", deleteSafe},
        {"progress", progress},
        {"shortcuts", shortcuts},
        {"save-login",
         savedLogin("https://studio.example/in", "Design Tools", "ana@studio.example")},
        {"save-login-update", savedLogin("https://gitforge.example/", "Git Forge", "")},
        {"save-login-locked", savedLogin("https://studio.example/in", "Design Tools", "ana"),
         Stage::Locked},
        {"question", question},
        {"install-steps", installSteps("chromium", "Chromium")},
        {"install-steps-firefox", installSteps("firefox", "Firefox")},
        {"approval", approval},
        {"new-version", newVersion},
        {"quick-access", quickAccess(Section::Logins)},
        {"quick-access-cards", quickAccess(Section::Cards)},
        {"quick-access-generate", quickAccess(Section::Generator)},
        {"quick-access-locked", quickAccess(Section::Logins), Stage::Locked},
        {"quick-access-empty", quickAccess(Section::Logins), Stage::Empty}};
    return cases;
}
