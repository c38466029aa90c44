#include "ProgramDesk.h"
#include "settings/HotkeyLineEdit.h"
#include "settings/SettingsTable.h"
#include "style/Theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

class TestSettingsDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySetting_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<QVariant>("stored");
        const auto row = [](const char *id, Setting::Page page, const QVector<int> &keys,
                            const QVariant &stored) {
            QTest::newRow(id) << int(page) << keys << stored;
        };
        const int space = Qt::Key_Space;
        const int down = Qt::Key_Down;
        row("check_updates", Setting::General, {space}, false);
        row("autolock_inactive", Setting::Security, {space}, false);
        row("inactivity_interval", Setting::Security, {Qt::Key_Up, Qt::Key_Up}, 5);
        row("autolock_screensaver", Setting::Security, {space}, false);
        row("clear_clipboard", Setting::Security, {space}, false);
        row("login_mode", Setting::Browser, {Qt::Key_Up}, "Fill"_s);
        row("plugin_login_mode", Setting::Browser, {down}, "PluginFillAndSubmit"_s);
        row("plugin_open_mode", Setting::Browser, {down, down}, "NewWindow"_s);
        row("enable_backup", Setting::Backup, {space}, false);
        row("backup_interval", Setting::Backup, {down}, "Week"_s);
        row("backup_count", Setting::Backup, {down}, 9);
        row("lock_hotkey", Setting::Hotkeys, {Qt::CTRL | Qt::ALT | Qt::Key_L}, "Ctrl+Alt+L"_s);
        row("plugin_hotkey", Setting::Hotkeys, {Qt::Key_F8}, "F8"_s);
    }
    void everySetting()
    {
        QFETCH(int, page);
        QFETCH(QVector<int>, keys);
        const char *id = QTest::currentDataTag();
        ProgramDesk program;
        QWidget *editor = reach(program.settings(), static_cast<Setting::Page>(page), id);
        QVERIFY(editor);
        QVERIFY(!editor->accessibleName().isEmpty());
        for (const int key : keys)
            QTest::keyClick(editor, static_cast<Qt::Key>(key & ~int(Qt::KeyboardModifierMask)),
                            Qt::KeyboardModifiers(key & int(Qt::KeyboardModifierMask)));
        QTEST(configValue(program.test, id), "stored");

        // A core that starts later has it, and its window shows it.
        GPMAppCore later(TestCore::places(program.test.folder.path()));
        for (int i = 0; i < GPMAppSettings::staticMetaObject.propertyCount(); ++i) {
            const char *name = GPMAppSettings::staticMetaObject.property(i).name();
            QCOMPARE(later.settings().property(name), program.test.core.settings().property(name));
        }
    }

    void everySettingIsTested()
    {
        QStringList tested = {"language_file"_s, "backup_path"_s, "theme"_s,
                              "text_size"_s,     "motion_off"_s,  "check_updates"_s};
        for (const char *id :
             {"autolock_inactive", "inactivity_interval", "autolock_screensaver", "clear_clipboard",
              "login_mode", "plugin_login_mode", "plugin_open_mode", "enable_backup",
              "backup_interval", "backup_state", "backup_count", "cloud_state", "lock_hotkey",
              "plugin_hotkey", "master_password", "browsers", "excluded_sites", "site_icons",
              "updates"})
            tested.append(QLatin1String(id));
        ProgramDesk program;
        QStringList shown;
        for (const SettingRow *row : program.settings().findChildren<SettingRow *>()) {
            shown.append(QLatin1String(row->setting().id));
            QVERIFY(!row->setting().explanation.isEmpty());
        }
        tested.sort();
        shown.sort();
        QCOMPARE(shown, tested);
    }

    void folder()
    {
        TestCore test;
        Theme theme;
        UiSettings ui(test.folder.path());
        const PMTranslator translator(test.folder.path());
        const QVector<Setting> settings =
            SettingsTable({test.core.settings(), ui, theme, translator, {}, {}, {}}).settings();
        QString chosen = test.folder.filePath("copies/here"_s);
        SettingsDialog dialog(settings, ui, theme, nullptr,
                              [&chosen](QWidget *, const QString &) { return chosen; });
        dialog.show();
        QWidget *button = reach(dialog, Setting::Backup, "backup_path");
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(configValue(test, "backup_path").toString(), QDir::toNativeSeparators(chosen));
        QVERIFY(QFileInfo(chosen).isDir());

        // A folder that cannot be made leaves the former one and says so.
        const QString good = chosen;
        QFile(test.folder.filePath("file"_s)).open(QIODevice::WriteOnly);
        chosen = test.folder.filePath("file/below"_s);
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(configValue(test, "backup_path").toString(), QDir::toNativeSeparators(good));
        QVERIFY(find<QLabel>(dialog, "backup_pathFault")->isVisible());
        // None chosen: nothing happens.
        chosen.clear();
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(test.core.settings().backupPath(), QDir::toNativeSeparators(good));
    }

    void switchesEnableWhatTheyRule()
    {
        ProgramDesk program;
        SettingsDialog &dialog = program.settings();
        QWidget *minutes = find<QWidget>(dialog, "inactivity_interval");
        QVERIFY(minutes->isEnabled());
        QTest::keyClick(reach(dialog, Setting::Security, "autolock_inactive"), Qt::Key_Space);
        QVERIFY(!minutes->isEnabled());
        QVERIFY(find<QWidget>(dialog, "backup_count")->isEnabled());
    }

    void failureToStoreIsTold()
    {
        ProgramDesk program;
        SettingsDialog &dialog = program.settings();
        // A folder in its place fails every write, even one by an administrator.
        const QString file = program.test.core.settings().filePath();
        QFile::remove(file);
        QVERIFY(QDir().mkpath(file + "/in the way"_s));
        QTest::keyClick(reach(dialog, Setting::General, "check_updates"), Qt::Key_Space);
        const auto *fault = find<QLabel>(dialog, "check_updatesFault");
        QVERIFY(fault->isVisible());
        QVERIFY(fault->text().contains(QDir::toNativeSeparators(file)));
        QVERIFY(!program.test.core.settings().checkUpdates());
    }

    void search()
    {
        ProgramDesk program;
        SettingsDialog &dialog = program.settings();
        auto *field = find<QLineEdit>(dialog, "settingsSearch");
        const auto shown = [&dialog] {
            QStringList ids;
            for (const SettingRow *row : dialog.findChildren<SettingRow *>()) {
                if (row->isVisible())
                    ids.append(QLatin1String(row->setting().id));
            }
            return ids.join(QLatin1Char(' '));
        };
        const QString first = shown();
        QTest::keyClick(&dialog, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(field, "COPY clip"_s);
        QCOMPARE(shown(), "clear_clipboard"_s);
        field->setText("idle"_s);
        QCOMPARE(shown(), "autolock_inactive inactivity_interval"_s);
        // Whoever cannot read the language that is shown finds the way out of it.
        field->setText("язык"_s);
        QCOMPARE(shown(), "language_file"_s);
        field->setText("no such thing"_s);
        QCOMPARE(shown(), QString());
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(shown(), first);
        QVERIFY(dialog.isVisible());
        // To go to a page leaves the search.
        field->setText("idle"_s);
        QTest::keyClick(find<QListWidget>(dialog, "settingsPages"), Qt::Key_End);
        QCOMPARE(shown(), "theme text_size motion_off"_s);
    }

    void pageIsKept()
    {
        ProgramDesk program;
        QPointer<SettingsDialog> dialog = &program.settings();
        QTest::keyClick(find<QListWidget>(*dialog, "settingsPages"), Qt::Key_End);
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
        QTRY_VERIFY(!dialog);
        QCOMPARE(uiValue(program.test, "SettingsDialog_TabIndex").toInt(),
                 int(Setting::Appearance));
        QVERIFY(uiValue(program.test, "SettingsDialog_Geometry").isValid());
        QCOMPARE(find<QListWidget>(program.settings(), "settingsPages")->currentRow(),
                 int(Setting::Appearance));
    }

    void hotkeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("hotkey");
        QTest::addColumn<QString>("fault");
        const QString none;
        const QString bare = "together with"_s;
        QTest::newRow("modified") << int(Qt::CTRL | Qt::SHIFT | Qt::Key_P) << "Ctrl+Shift+P"_s
                                  << none;
        QTest::newRow("function key") << int(Qt::Key_F12) << "F12"_s << none;
        QTest::newRow("with Meta") << int(Qt::META | Qt::Key_Delete) << "Meta+Del"_s << none;
        QTest::newRow("letter") << int(Qt::Key_P) << none << bare;
        QTest::newRow("capital letter") << int(Qt::SHIFT | Qt::Key_P) << none << bare;
        QTest::newRow("space") << int(Qt::Key_Space) << none << bare;
        QTest::newRow("enter") << int(Qt::Key_Return) << none << bare;
        QTest::newRow("key that no system takes")
            << int(Qt::CTRL | Qt::Key_Enter) << none << "This key"_s;
        QTest::newRow("key of the program") << int(Qt::CTRL | Qt::Key_F) << none << "Search"_s;
        QTest::newRow("key of texts") << int(Qt::CTRL | Qt::Key_V) << none << "paste"_s;
        QTest::newRow("other hotkey")
            << int(Qt::CTRL | Qt::ALT | Qt::Key_B) << none << "Browser plugin hotkey"_s;
    }
    void hotkeys()
    {
        QFETCH(int, key);
        QFETCH(QString, hotkey);
        QFETCH(QString, fault);
        ProgramDesk program;
        GPMAppSettings &settings = program.test.core.settings();
        settings.setPluginHotkey("Ctrl+Alt+B"_s);
        SettingsDialog &dialog = program.settings();
        QWidget *editor = reach(dialog, Setting::Hotkeys, "lock_hotkey");
        const auto press = [editor](int keys) {
            QTest::keyClick(editor, static_cast<Qt::Key>(keys & ~int(Qt::KeyboardModifierMask)),
                            Qt::KeyboardModifiers(keys & int(Qt::KeyboardModifierMask)));
        };
        press(key);
        QCOMPARE(settings.lockHotkey(), hotkey);
        const auto *told = find<QLabel>(dialog, "lock_hotkeyFault");
        QCOMPARE(told->isVisible(), !fault.isEmpty());
        QVERIFY2(told->text().contains(fault), qPrintable(told->text()));
        press(Qt::CTRL | Qt::ALT | Qt::Key_X);
        QCOMPARE(settings.lockHotkey(), "Ctrl+Alt+X"_s);
        QVERIFY(!told->isVisible());
        press(Qt::Key_Backspace);
        QCOMPARE(settings.lockHotkey(), QString());
        press(Qt::Key_Tab);
        QVERIFY(!editor->hasFocus());
    }

    void ownShortcutsAreTaken()
    {
        ProgramDesk program;
        auto *editor = qobject_cast<HotkeyLineEdit *>(
            reach(program.settings(), Setting::Hotkeys, "lock_hotkey"));
        QSignalSpy refused(editor, &HotkeyLineEdit::refused);
        int pressed = 0;
        for (const QShortcut *shortcut : program.window().findChildren<QShortcut *>()) {
            const int key = shortcut->key()[0];
            if (key == Qt::Key_Escape || key == 0)
                continue;
            QTest::keyClick(editor, static_cast<Qt::Key>(key & ~int(Qt::KeyboardModifierMask)),
                            Qt::KeyboardModifiers(key & int(Qt::KeyboardModifierMask)));
            QCOMPARE(refused.count(), ++pressed);
        }
        QVERIFY(pressed > 5);
    }

    void lockHotkeyLocks()
    {
        ProgramDesk program;
        SettingsDialog &dialog = program.settings();
        QTest::keyClick(reach(dialog, Setting::Hotkeys, "lock_hotkey"), Qt::Key_K,
                        Qt::ControlModifier | Qt::AltModifier);
        QVERIFY(program.test.core.currentSafe()->isUnlocked());
        find<QWidget>(dialog, "settingsSearch")->setFocus();
        QTest::keyClick(&dialog, Qt::Key_K, Qt::ControlModifier | Qt::AltModifier);
        QVERIFY(!program.test.core.currentSafe()->isUnlocked());
    }

    void openFromTheLockPage()
    {
        ProgramDesk program;
        program.test.core.lockCurrentSafe();
        QApplication::setActiveWindow(program.ui.mainWindow());
        QTest::keyClick(program.ui.mainWindow()->focusWidget(), Qt::Key_Comma, Qt::ControlModifier);
        QVERIFY(program.window().findChild<SettingsDialog *>());
    }

    void tellsWhereNobodySeemsAway()
    {
        ProgramDesk program;
        const auto explanation = [&program] {
            const QWidget *lock = reach(program.settings(), Setting::Security, "autolock_inactive");
            return lock->accessibleDescription();
        };
        QCOMPARE(explanation(), "The safe locks when you leave the computer alone."_s);
        delete program.window().findChild<SettingsDialog *>();
        program.test.user->tells = false;
        for (int second = 0; second < 10; ++second)
            program.test.core.checkInactivity();
        QVERIFY(explanation().startsWith("Your desktop does not tell when you are away."_s));
    }
};

QTEST_MAIN(TestSettingsDialog)
#include "tst_settingsdialog.moc"
