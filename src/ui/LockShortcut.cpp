#include "LockShortcut.h"

#include "GPMAppSettings.h"

#include <QShortcut>

QShortcut *makeLockShortcut(GPMAppSettings &settings, QWidget &window)
{
    auto *shortcut = new QShortcut(&window);
    shortcut->setObjectName(QStringLiteral("lockHotkey"));
    shortcut->setContext(Qt::ApplicationShortcut);
    const auto setKeys = [shortcut](const QString &keys) {
        shortcut->setKey(QKeySequence(keys, QKeySequence::PortableText));
    };
    setKeys(settings.lockHotkey());
    QObject::connect(&settings, &GPMAppSettings::lockHotkeyChanged, shortcut, setKeys);
    return shortcut;
}
