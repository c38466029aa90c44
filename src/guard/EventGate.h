#pragma once

#include <QObject>

#include <functional>

/// Makes a check before any window of the program draws or takes input. When the computer wakes up
/// that comes earlier than a timer.
class EventGate : public QObject
{
    Q_OBJECT

public:
    explicit EventGate(std::function<void()> check, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    std::function<void()> m_check;
    bool m_checking = false;
};
