#pragma once

#include "../Text.h"
#include "../guard/FakeActivity.h"
#include "GPMAppCore.h"
#include "PMFieldTypes.h"
#include "PMLogin.h"
#include "dialogs/Question.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>

const QString testPassword = "master password 1"_s;

/// A core whose files lie in a folder of its own.
struct TestCore
{
    TestCore()
        : core(places(folder.path(), user))
    {
        PMFieldTypes::registerMetaTypes();
        qRegisterMetaType<SafeUnlock::Outcome>("SafeUnlock::Outcome");
    }

    using User = std::shared_ptr<FakeActivity::State>;

    static GPMAppCore::Places places(const QString &folder,
                                     const User &user = std::make_shared<FakeActivity::State>())
    {
        GPMAppCore::Places places;
        places.configFolder = folder + QStringLiteral("/config");
        places.dataFolder = folder + QStringLiteral("/data");
        places.hiddenFolder = folder + QStringLiteral("/hidden");
        places.cloudInfoFiles = QStringList{folder + QStringLiteral("/info.json")};
        places.lookWaitMs = 20000; // longer than a busy computer takes
        BrowserPlaces browsers;
        browsers.root = folder;
        browsers.home = folder + QStringLiteral("/home");
        browsers.environment = [](const QString &) { return QString(); };
        places.browsers = browsers;
        places.activity = [user] { return std::make_unique<FakeActivity>(user); };
        return places;
    }

    bool createSafe(const QString &name = QStringLiteral("Personal"))
    {
        return core.createSafe(name, testPassword, QStringLiteral("the usual"));
    }

    QString addLogin(const QString &title, const QString &userName = QStringLiteral("ana"))
    {
        auto login = std::make_unique<PMLogin>();
        login->setTitle(title);
        login->setLogin(userName);
        login->setSecondaryText(userName);
        login->setPassword(QStringLiteral("secret of ") + title);
        login->setUrl(QStringLiteral("https://shop.example/login"));
        return core.modelAddItem(std::move(login))->id();
    }

    QString addLogin(const char *title, const char *userName = "ana")
    {
        return addLogin(QLatin1String(title), QLatin1String(userName));
    }

    PMLogin *login(const QString &id)
    {
        return qobject_cast<PMLogin *>(core.currentSafe()->item(id));
    }

    QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }
    QString file(const char *name, const QByteArray &bytes = "content") const
    {
        QFile made(folder.filePath(QString::fromUtf8(name)));
        if (!made.open(QIODevice::WriteOnly) || made.write(bytes) != bytes.size())
            qFatal("No file to test with");
        return made.fileName();
    }

    /// Acts while nothing can be saved: the folder of the items is away, after a save.
    template <typename Act>
    void withoutFolder(const Act &act, bool saved = true)
    {
        const QString content = core.currentSafe()->folder() + "/content"_s;
        if ((saved && !core.saveCurrentSafe()) || !QDir().rename(content, content + "-away"_s))
            qFatal("The folder is in use");
        act();
        if (!QDir().rename(content + "-away"_s, content))
            qFatal("The folder does not come back");
    }

    QTemporaryDir folder;
    User user = std::make_shared<FakeActivity::State>();
    GPMAppCore core;
};

/// Lets a view follow the locks of the safe, as its window does.
template <typename Content>
void followLocks(Content &view, TestCore &test)
{
    QObject::connect(&test.core, &GPMAppCore::safeLockedChanged, &view,
                     [&view, &test](bool locked) {
                         if (locked)
                             view.closeSafe();
                         else
                             view.openSafe(test.core.currentSafe());
                     });
}

/// Makes a safe and shows it in a view.
template <typename Content>
void openWithSafe(Content &view, TestCore &test)
{
    followLocks(view, test);
    if (!test.createSafe())
        qFatal("No safe to test with");
}

/// Answers questions with what was prepared and keeps them.
struct TestAsker
{
    int answer = 0;
    QVector<Question> asked;
    std::function<void()> meanwhile; ///< what happens while a question is open

    Asker asker()
    {
        return [this](const Question &question) {
            asked.append(question);
            if (meanwhile)
                meanwhile();
            return answer;
        };
    }
};

template <typename Widget>
Widget *find(const QWidget &parent, const char *name)
{
    return parent.findChild<Widget *>(QLatin1String(name));
}
