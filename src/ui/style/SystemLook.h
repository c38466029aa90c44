#pragma once

#include <QObject>
#include <QVariantMap>

/// What the system asks of the look of programs.
namespace SystemLook {

bool isDark();

/// What can be told at once; a MotionWatch learns the rest.
bool wantsReducedMotion();

} // namespace SystemLook

/// Learns from the desktop, without waiting for it, whether animations are wanted.
class MotionWatch : public QObject
{
    Q_OBJECT

public:
    using Settings = QMap<QString, QVariantMap>;

    explicit MotionWatch(QObject *parent = nullptr);

    /// Asks the desktop. Does nothing on systems that have no such desktop.
    void start();

    /// Whether the settings of a desktop, by their group and name, ask for reduced motion.
    static bool reduced(const Settings &settings);

Q_SIGNALS:
    void told(bool reduced);

private Q_SLOTS:
    void onChanged(const QString &group, const QString &name);
};
