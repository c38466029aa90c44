#pragma once

#include "../browser/ExtensionClient.h"
#include "PMUiProvider.h"
#include "UiTesting.h"
#include "quick/QuickAccessWindow.h"
#include "quick/QuickList.h"

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QTcpServer>

const QString quickPage = "https://www.shop.example/cart"_s;

inline GPMAppCore::Places withPort(const QTemporaryDir &folder)
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    GPMAppCore::Places places = TestCore::places(folder.path());
    places.port = server.serverPort();
    return places;
}

/// The program with a link to a browser, and quick access as its user meets it.
struct Quick
{
    explicit Quick(bool hasSafe = true)
        : places(withPort(folder))
        , core(places)
        , provider(core, [] { return true; })
    {
        PMFieldTypes::registerMetaTypes();
        qRegisterMetaType<SafeUnlock::Outcome>("SafeUnlock::Outcome");
        core.startServer();
        provider.connectCore();
        provider.createMainWindow();
        provider.openMainView({});
        if (hasSafe && !core.createSafe("Mine"_s, testPassword, "the usual"_s))
            qFatal("No safe to test with");
    }

    template <typename Item = PMLogin>
    Item *add(const QString &title, const QString &url = {})
    {
        auto item = std::make_unique<Item>();
        item->setTitle(title);
        item->setUrl(url);
        item->setSecondaryText("ana of "_s + title);
        return qobject_cast<Item *>(core.modelAddItem(std::move(item)));
    }
    PMLogin *addLogin(const QString &title, const QString &url = {})
    {
        PMLogin *login = add(title, url);
        login->setLogin("ana at "_s + title);
        login->setPassword("secret of "_s + title);
        return login;
    }

    PMLogin *addLogin(const char *title) { return addLogin(QLatin1String(title)); }
    /// The login of https://title.example, and its id.
    QString addSite(const char *title)
    {
        const QString name = QLatin1String(title);
        return addLogin(name, "https://%1.example"_s.arg(name.toLower()))->id();
    }

    /// Opens it as the browser would.
    void open(const QJsonObject &wish = {{"url"_s, quickPage}})
    {
        Q_EMIT core.requestQuickAccess(QuickAccessWish::fromExtension(caller, wish));
    }

    QWidget *window() const
    {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1String("quickAccess"))
                return top;
        }
        return nullptr;
    }
    bool isActive() const { return QTest::qWaitForWindowActive(window()); }
    bool isShown() const { return window() && window()->isVisible(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QWidget *focus = window()->focusWidget();
        QTest::keyClick(focus ? focus : window(), key, modifiers);
    }
    void type(const QString &text) const { QTest::keyClicks(window()->focusWidget(), text); }
    QString focus() const
    {
        return window()->focusWidget() ? window()->focusWidget()->objectName() : QString();
    }
    template <typename Widget = QWidget>
    Widget *part(const char *name) const
    {
        return find<Widget>(*window(), name);
    }
    QListView *list() const { return part<QListView>("quickList"); }
    QString chosen() const { return list()->currentIndex().data().toString(); }
    /// Until a row that came to the place of another takes keys.
    bool settles() const
    {
        return QTest::qWaitFor(
            [this] { return !window()->findChild<QuickList *>()->isSettling(); });
    }

    QTemporaryDir folder;
    GPMAppCore::Places places;
    GPMAppCore core;
    PMUiProvider provider;
    QString caller;
};

/// A browser's extension that keeps what it is told to fill.
struct Browser : ExtensionClient
{
    explicit Browser(Quick &quick)
        : ExtensionClient(quick.places.port)
    {
        quick.caller = sayHello();
    }
    /// The newest request for a page's forms; empty when none came.
    QJsonObject request() const
    {
        for (auto frame = frames.rbegin(); frame != frames.rend(); ++frame) {
            if (frame->value(QLatin1String("action")) == QLatin1String("getDocumentData"))
                return frame->value(QLatin1String("payload")).toObject();
        }
        return {};
    }
    QString asked(const char *key) const { return request().value(QLatin1String(key)).toString(); }
};
