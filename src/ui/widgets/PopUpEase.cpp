#include "PopUpEase.h"

#include "style/Style.h"
#include "style/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QPropertyAnimation>
#include <QWidget>

PopUpEase::PopUpEase(const Theme &theme, QObject *parent)
    : QObject(parent)
    , m_theme(theme)
{
    // Ours take their place.
    for (const Qt::UIEffect effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
                                      Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip})
        QApplication::setEffectEnabled(effect, false);
    // The others have no windows that let others shine through.
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("xcb") || platform == QLatin1String("windows"))
        qApp->installEventFilter(this);
}

bool PopUpEase::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show || !watched->isWidgetType())
        return false;
    auto *popUp = static_cast<QWidget *>(watched);
    const int time = m_theme.motion(Style::popUpMs);
    if (popUp->windowType() != Qt::Popup || time == 0)
        return false;
    auto *fade = new QPropertyAnimation(popUp, "windowOpacity", popUp);
    fade->setDuration(time);
    fade->setEasingCurve(QEasingCurve::OutCubic);
    fade->setStartValue(0.0);
    fade->setEndValue(1.0);
    fade->start(QAbstractAnimation::DeleteWhenStopped);
    return false;
}
