#pragma once

#include "PMUiProvider.h"
#include "SideWindows.h"
#include "UiTesting.h"
#include "settings/SettingsDialog.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QSettings>

/// A user before the program's windows, with an open safe.
struct ProgramDesk
{
    ProgramDesk()
        : ui(
              test.core, [] { return true; }, test.folder.path())
    {
        ui.connectCore();
        ui.createMainWindow();
        ui.openMainView({});
        ui.bringToFront();
        ui.sideWindows().updates().checker().setEndpoint(
            QUrl("https://updates.glaceron.example/check"_s));
        if (!test.createSafe())
            qFatal("No safe to test with");
    }

    QWidget &window() const { return *ui.mainWindow(); }
    template <typename Widget>
    Widget *part(const char *name) const
    {
        return find<Widget>(window(), name);
    }
    /// Opened by its key.
    SettingsDialog &settings() const
    {
        QApplication::setActiveWindow(&window());
        QTest::keyClick(&window(), Qt::Key_Comma, Qt::ControlModifier);
        return *window().findChild<SettingsDialog *>();
    }

    TestCore test;
    PMUiProvider ui;
};

/// Shows the page of a setting by keys and gives its editor the keyboard.
inline QWidget *reach(SettingsDialog &dialog, Setting::Page page, const char *id)
{
    auto *pages = find<QListWidget>(dialog, "settingsPages");
    QTest::keyClick(pages, Qt::Key_Home);
    for (int i = 0; i < page; ++i)
        QTest::keyClick(pages, Qt::Key_Down);
    auto *editor = find<QWidget>(dialog, id);
    editor->setFocus();
    return editor->isVisible() ? editor : nullptr;
}

/// What the disk has of the core's settings, and of the windows'.
inline QVariant configValue(const TestCore &test, const char *key)
{
    QFile file(test.path("config/config.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String(key)).toVariant();
}

inline QVariant uiValue(const TestCore &test, const char *key)
{
    const QSettings store(test.path("config/uisettings.ini"), QSettings::IniFormat);
    return store.value(QLatin1String(key));
}
