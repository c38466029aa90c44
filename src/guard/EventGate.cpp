#include "EventGate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QScopedValueRollback>

#include <utility>

namespace {

bool drawsOrTypes(QEvent::Type type)
{
    switch (type) {
    // Paint events come too late: to lock changes the widgets that are being painted.
    case QEvent::Expose:
    case QEvent::UpdateRequest:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::WindowActivate:
        return true;
    default:
        return false;
    }
}

} // namespace

EventGate::EventGate(std::function<void()> check, QObject *parent)
    : QObject(parent)
    , m_check(std::move(check))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool EventGate::eventFilter(QObject *receiver, QEvent *event)
{
    if (m_checking || !drawsOrTypes(event->type()))
        return false;
    const QScopedValueRollback<bool> checking(m_checking, true);
    const QPointer<QObject> alive(receiver);
    m_check();
    return !alive;
}
