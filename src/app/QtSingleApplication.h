#pragma once

#include "InstanceChannel.h"

#include <QApplication>

/// An application of which one instance runs per user. A second start finds the first and can send
/// it a message.
class QtSingleApplication : public QApplication
{
    Q_OBJECT

public:
    QtSingleApplication(int &argc, char **argv);

    /// Whether another instance runs. When none does, this one becomes the running one and
    /// receives messages from now on.
    bool isRunning();

    /// Sends a message to the running instance. False when it did not confirm it within the time.
    bool sendMessage(const QString &message, int timeoutMs = 5000);

Q_SIGNALS:
    void messageReceived(const QString &message);

private:
    InstanceChannel m_channel;
};
