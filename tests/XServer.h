#pragma once

#include <QProcess>
#include <QProcessEnvironment>

#include <X11/Xlib.h>

/// An X server without a screen for the life of the object, to which DISPLAY points, and a client
/// of it beside the program.
class XServer
{
public:
    /// @param speed how many times faster than others its clock runs
    explicit XServer(int speed = 1)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        if (speed > 1) {
            environment.insert(QStringLiteral("LD_PRELOAD"),
                               QStringLiteral("/usr/$LIB/faketime/libfaketime.so.1"));
            environment.insert(QStringLiteral("FAKETIME"), QStringLiteral("+0 x%1").arg(speed));
        }
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral("Xvfb"),
                        {QStringLiteral("-displayfd"), QStringLiteral("1"),
                         QStringLiteral("-screen"), QStringLiteral("0"),
                         QStringLiteral("800x600x24"), QStringLiteral("-nolisten"),
                         QStringLiteral("tcp")});
        QByteArray number;
        while (!number.endsWith('\n') && m_process.waitForReadyRead(20000))
            number += m_process.readAllStandardOutput();
        if (!number.endsWith('\n'))
            qFatal("Xvfb does not start");
        qputenv("DISPLAY", ':' + number.trimmed());
        qunsetenv("WAYLAND_DISPLAY");
        m_client = XOpenDisplay(nullptr);
    }
    ~XServer()
    {
        if (m_client)
            XCloseDisplay(m_client);
        stop();
    }
    XServer(const XServer &) = delete;
    XServer &operator=(const XServer &) = delete;

    Display *client() const { return m_client; }
    Window root() const { return DefaultRootWindow(m_client); }

    void stop()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    Display *m_client;
};
