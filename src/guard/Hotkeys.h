#pragma once

#include "SystemHotkeys.h"

#include <QObject>
#include <QString>

#include <memory>

class GPMAppSettings;
class QSocketNotifier;

/// The user's two hotkeys, kept registered with the system as the settings say.
class Hotkeys : public QObject
{
    Q_OBJECT

public:
    Hotkeys(const GPMAppSettings &settings, std::unique_ptr<SystemHotkeys> system,
            QObject *parent = nullptr);
    ~Hotkeys() override;

    /// Registers what the settings have; later changes are followed.
    void start();

Q_SIGNALS:
    void lockPressed();
    void pluginPressed();
    /// The user chose a combination that something else has.
    void taken(const QString &combination);

private:
    enum Command { Lock, Plugin };

    void follow(Command command, const QString &text, bool chosenNow);
    void onPressed(int command);
    void watchEvents();

    const GPMAppSettings &m_settings;
    std::unique_ptr<SystemHotkeys> m_system;
    std::unique_ptr<QSocketNotifier> m_notifier;
    bool m_saidUnsupported = false;
};
