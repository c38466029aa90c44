#include "EveryWindow.h"

#include "attachments/AttachmentPreview.h"
#include "attachments/RenameDialog.h"
#include "main/ItemPane.h"
#include "main/ShortcutsDialog.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QBuffer>
#include <QLineEdit>

QWidget *mainWindow(Stage &stage)
{
    return stage.main;
}

namespace {

Show item(const char *title)
{
    return [title](Stage &stage) {
        stage.choose(QLatin1String(title));
        return stage.main;
    };
}

QWidget *narrowList(Stage &stage)
{
    find<QAbstractItemView>(*stage.main, "itemList")->setFocus();
    return stage.main;
}

/// An item in a main window that has room for one column.
Show narrowItem(const char *title)
{
    return [title](Stage &stage) {
        stage.shrink(*stage.main, true);
        stage.choose(QLatin1String(title));
        QTest::keyClick(find<QAbstractItemView>(*stage.main, "itemList"), Qt::Key_Right);
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

QWidget *manySelected(Stage &stage)
{
    find<QAbstractItemView>(*stage.main, "itemList")->selectAll();
    return stage.main;
}

QWidget *exportDialog(Stage &stage)
{
    manySelected(stage);
    stage.press("exportSelectedButton");
    return stage.window("exportDialog");
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

QWidget *preview(Stage &stage, const char *name, const QByteArray &bytes)
{
    return stage.shownBeside(new AttachmentPreview(QLatin1String(name), PreviewContent::of(bytes),
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
    return stage.shownBeside(new RenameDialog("recovery-codes.txt"_s, stage.theme, stage.main));
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

QWidget *shortcuts(Stage &stage)
{
    return stage.shownBeside(new ShortcutsDialog(stage.theme, stage.main));
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

QVector<WindowCase> itemWindows()
{
    using Section = QuickAccessWish::Section;
    return {{"lock", mainWindow, Stage::Locked},
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
            {"narrow-list", narrowList, Stage::Filled, true},
            {"narrow-item", narrowItem("Cloudmail"), Stage::Filled, true},
            {"narrow-edit", editor("Cloudmail"), Stage::Filled, true},
            {"selection", manySelected},
            {"export", exportDialog},
            {"nothing-found", search("quite another thing")},
            {"generator", opened("generatorButton", "PasswordGenerator")},
            {"generator-recent", recentPasswords},
            {"health", opened("healthButton", "healthDialog")},
            {"draft-offered", offeredDraft, Stage::Interrupted},
            {"narrow-draft-offered", offeredDraft, Stage::Interrupted, true},
            {"attachment-text", textPreview},
            {"attachment-picture", picturePreview},
            {"attachment-rename", renameDialog},
            {"shortcuts", shortcuts},
            {"save-login",
             savedLogin("https://studio.example/in", "Design Tools", "ana@studio.example")},
            {"save-login-update", savedLogin("https://gitforge.example/", "Git Forge", "")},
            {"save-login-locked", savedLogin("https://studio.example/in", "Design Tools", "ana"),
             Stage::Locked},
            {"question", question},
            {"quick-access", quickAccess(Section::Logins)},
            {"quick-access-cards", quickAccess(Section::Cards)},
            {"quick-access-generate", quickAccess(Section::Generator)},
            {"quick-access-locked", quickAccess(Section::Logins), Stage::Locked},
            {"quick-access-empty", quickAccess(Section::Logins), Stage::Empty}};
}
