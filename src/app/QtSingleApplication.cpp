#include "QtSingleApplication.h"

#include <QStandardPaths>

QtSingleApplication::QtSingleApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
    connect(&m_channel, &InstanceChannel::messageReceived, this,
            &QtSingleApplication::messageReceived);
}

bool QtSingleApplication::isRunning()
{
    // The folder of the settings is the user's and this program's own.
    return !m_channel.acquire(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
}

bool QtSingleApplication::sendMessage(const QString &message, int timeoutMs)
{
    return m_channel.send(message, timeoutMs);
}
