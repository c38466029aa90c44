#pragma once

#include "Clock.h"

#include <QDate>
#include <QObject>
#include <QTimer>

/// Tells that another day has begun, soon after midnight or after the computer has slept.
class DayWatch : public QObject
{
    Q_OBJECT

public:
    explicit DayWatch(Clock clock, QObject *parent = nullptr);

Q_SIGNALS:
    void dayChanged();

private:
    QDate today() const { return m_clock().toLocalTime().date(); }
    void check();

    Clock m_clock;
    QDate m_day;
    QTimer *m_timer;
};
