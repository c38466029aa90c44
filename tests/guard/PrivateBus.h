#pragma once

#include <QDBusConnection>
#include <QProcess>

/// A message bus of its own for the life of the object.
class PrivateBus
{
public:
    PrivateBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address")});
        if (!m_daemon.waitForReadyRead())
            qFatal("dbus-daemon does not start");
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    const QString &address() const { return m_address; }

    /// The connection of a name, the same for each call until it is disconnected.
    QDBusConnection connection(const char *name) const
    {
        return QDBusConnection::connectToBus(m_address, QLatin1String(name));
    }

private:
    QProcess m_daemon;
    QString m_address;
};
