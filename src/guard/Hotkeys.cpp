#include "Hotkeys.h"

#include "GPMAppSettings.h"
#include "HotkeyText.h"

#include <QDebug>
#include <QKeySequence>
#include <QSocketNotifier>

#include <utility>

Hotkeys::Hotkeys(const GPMAppSettings &settings, std::unique_ptr<SystemHotkeys> system,
                 QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_system(std::move(system))
{
    m_system->setHandler([this](int command) { onPressed(command); });
}

Hotkeys::~Hotkeys() = default;

void Hotkeys::start()
{
    watchEvents();
    follow(Lock, m_settings.lockHotkey(), false);
    follow(Plugin, m_settings.pluginHotkey(), false);
    connect(&m_settings, &GPMAppSettings::lockHotkeyChanged, this,
            [this](const QString &text) { follow(Lock, text, true); });
    connect(&m_settings, &GPMAppSettings::pluginHotkeyChanged, this,
            [this](const QString &text) { follow(Plugin, text, true); });
}

void Hotkeys::watchEvents()
{
    if (m_system->descriptor() < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_system->descriptor(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_system->readEvents();
        // With the connection gone the descriptor would report that without end.
        m_notifier->setEnabled(m_system->descriptor() >= 0);
    });
}

void Hotkeys::follow(Command command, const QString &text, bool chosenNow)
{
    m_system->remove(command);
    if (text.isEmpty())
        return;
    const std::optional<SystemHotkeys::Combination> combination = hotkeyCombination(text);
    if (!combination) {
        qWarning() << "Hotkeys: not a hotkey:" << text;
        return;
    }
    const SystemHotkeys::Result result = m_system->add(command, *combination);
    if (result == SystemHotkeys::Result::Unsupported && !std::exchange(m_saidUnsupported, true))
        qWarning() << "Hotkeys: the system takes none, they work in our own windows alone:" << text;
    if (result != SystemHotkeys::Result::Taken)
        return;
    qWarning() << "Hotkeys: used by another program:" << text;
    if (chosenNow)
        Q_EMIT taken(QKeySequence::fromString(text, QKeySequence::PortableText)
                         .toString(QKeySequence::NativeText));
}

void Hotkeys::onPressed(int command)
{
    if (command == Lock)
        Q_EMIT lockPressed();
    else
        Q_EMIT pluginPressed();
}
