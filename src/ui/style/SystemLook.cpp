#include "SystemLook.h"

#include "WindowSystem.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>

#ifdef GLACERON_DBUS
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#endif

namespace {

struct Row
{
    const char *group;
    const char *name;
    QVariant still; ///< the value that asks for reduced motion
};

const QVector<Row> &rows()
{
    static const QVector<Row> all = {
        {"org.gnome.desktop.interface", "enable-animations", false},
        {"org.freedesktop.appearance", "reduced-motion", 1u},
    };
    return all;
}

} // namespace

bool SystemLook::isDark()
{
    if (const std::optional<bool> dark = WindowSystem::prefersDark())
        return *dark;
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

bool SystemLook::wantsReducedMotion()
{
    if (WindowSystem::wantsStillness())
        return true;
    const QString path =
        QStandardPaths::locate(QStandardPaths::GenericConfigLocation, QStringLiteral("kdeglobals"));
    const QSettings plasma(path, QSettings::IniFormat);
    if (!path.isEmpty() &&
        plasma.value(QStringLiteral("KDE/AnimationDurationFactor"), 1).toDouble() <= 0)
        return true;
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

MotionWatch::MotionWatch(QObject *parent)
    : QObject(parent)
{
}

bool MotionWatch::reduced(const Settings &settings)
{
    for (const Row &row : rows()) {
        const QVariant value =
            settings.value(QLatin1String(row.group)).value(QLatin1String(row.name));
        if (value.isValid() && value == row.still)
            return true;
    }
    return false;
}

#ifdef GLACERON_DBUS

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

/// Without a bus that runs one would be started, which takes its time.
bool hasBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

} // namespace

void MotionWatch::start()
{
    if (!hasBus())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(onChanged(QString, QString)));
    onChanged(QLatin1String(rows().first().group), QLatin1String(rows().first().name));
}

void MotionWatch::onChanged(const QString &group, const QString &name)
{
    QStringList groups;
    bool ours = false;
    for (const Row &row : rows()) {
        groups.append(QLatin1String(row.group));
        ours = ours || (group == QLatin1String(row.group) && name == QLatin1String(row.name));
    }
    if (!ours)
        return;
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    call.setArguments({groups});
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusMessage reply = answer->reply();
        if (reply.type() == QDBusMessage::ReplyMessage)
            Q_EMIT told(reduced(qdbus_cast<Settings>(reply.arguments().value(0))));
    });
}

#else

void MotionWatch::start() {}

void MotionWatch::onChanged(const QString &, const QString &) {}

#endif
