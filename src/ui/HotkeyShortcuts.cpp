#include "HotkeyShortcuts.h"

#include "GPMAppSettings.h"
#include "HotkeyText.h"

#include <QShortcut>

namespace {

QShortcut *makeShortcut(QWidget &window, const char *name, const QString &keys)
{
    auto *shortcut = new QShortcut(hotkeySequence(keys), &window);
    shortcut->setObjectName(QLatin1String(name));
    shortcut->setContext(Qt::ApplicationShortcut);
    return shortcut;
}

} // namespace

QShortcut *makeLockShortcut(GPMAppSettings &settings, QWidget &window)
{
    QShortcut *shortcut = makeShortcut(window, "lockHotkey", settings.lockHotkey());
    QObject::connect(&settings, &GPMAppSettings::lockHotkeyChanged, shortcut,
                     [shortcut](const QString &keys) { shortcut->setKey(hotkeySequence(keys)); });
    return shortcut;
}

QShortcut *makeQuickAccessShortcut(GPMAppSettings &settings, QWidget &window)
{
    QShortcut *shortcut = makeShortcut(window, "quickAccessHotkey", settings.pluginHotkey());
    QObject::connect(&settings, &GPMAppSettings::pluginHotkeyChanged, shortcut,
                     [shortcut](const QString &keys) { shortcut->setKey(hotkeySequence(keys)); });
    return shortcut;
}
