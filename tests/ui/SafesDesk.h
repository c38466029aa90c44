#pragma once

#include "UiTesting.h"
#include "dialogs/ProgressDialog.h"
#include "lock/PagesStack.h"
#include "lock/SecureWindow.h"
#include "lock/UnlockLogic.h"
#include "main/MainView.h"
#include "safes/DeleteSafeDialog.h"
#include "safes/SafeDesk.h"
#include "style/Theme.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

/// The program's windows with a user who answers what was prepared.
struct SafesDesk
{
    SafesDesk()
    {
        window = std::make_unique<SecureWindow>(
            test.core, theme, new MainView(test.core, theme, asker.asker()), asker.asker());
        FileChooser chooser;
        chooser.openFile = [this](const QString &, const QString &) { return chosen; };
        chooser.saveFile = [this](const QString &, const QString &, const QString &) {
            return chosen;
        };
        chooser.folder = [this](const QString &) { return chosen; };
        desk.setWindow({window.get(), [this] { return window->leaveByUser(); },
                        [this](const QString &folder) { window->switchSafe(folder); },
                        [this] { window->createSafe(); }},
                       {asker.asker(), chooser, [this](const QString &path) { shown = path; }});
        window->show();
    }

    QString path(const char *name) const { return test.path(name); }

    bool makeSafe(const char *name)
    {
        return test.core.createSafe(QLatin1String(name), testPassword, "h"_s, path(name));
    }

    SafesDialog *openList()
    {
        desk.openList();
        auto *list = window->findChild<SafesDialog *>();
        return QTest::qWaitFor([list] { return !list->isReading(); }) ? list : nullptr;
    }

    QStringList listed()
    {
        QStringList names;
        for (const KnownSafes::Entry &entry : test.core.knownSafes().entries())
            names.append(entry.name);
        return names;
    }

    template <typename Dialog>
    Dialog *dialog()
    {
        Dialog *found = nullptr;
        const bool came = QTest::qWaitFor([&] {
            for (QWidget *top : QApplication::topLevelWidgets()) {
                auto *candidate = qobject_cast<Dialog *>(top);
                if (candidate && candidate->isVisible())
                    found = candidate;
            }
            return found != nullptr;
        });
        return came ? found : nullptr;
    }

    /// The window of the work, when it is done.
    ProgressDialog *finished()
    {
        auto *progress = dialog<ProgressDialog>();
        const bool done =
            progress && QTest::qWaitFor([progress] { return !progress->isRunning(); }, 30000);
        return done ? progress : nullptr;
    }
    /// The window that comes before the list.
    template <typename Dialog>
    static Dialog *dialogOf(const SafesDialog &list, const char *name = nullptr)
    {
        Dialog *found = nullptr;
        const bool came = QTest::qWaitFor([&] {
            found = list.findChild<Dialog *>(QString::fromLatin1(name));
            return found != nullptr;
        });
        return came ? found : nullptr;
    }

    static void confirm(const DeleteSafeDialog &question)
    {
        find<QLineEdit>(question, "deletePassword")->setText(testPassword);
        find<QPushButton>(question, "deleteButton")->click();
    }

    /// Chooses a command of a safe's menu.
    void choose(SafesDialog &list, const char *safe, const char *action)
    {
        for (SafeRow *row : list.findChildren<SafeRow *>()) {
            if (row->safe().name == QLatin1String(safe) && row->isVisible())
                row->findChild<QAction *>(QLatin1String(action))->trigger();
        }
        QCoreApplication::processEvents();
    }

    TestCore test;
    Theme theme;
    TestAsker asker;
    QString chosen;
    QString shown;
    SafeDesk desk{test.core, theme};
    std::unique_ptr<SecureWindow> window;
};
