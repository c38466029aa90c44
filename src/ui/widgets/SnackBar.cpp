#include "SnackBar.h"

#include "Announcer.h"
#include "Controls.h"
#include "ElidedLabel.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPropertyAnimation>

namespace {

const int widest = 520;
const int barHeight = 44;

} // namespace

SnackBar::SnackBar(const Theme &theme, QWidget *host)
    : QFrame(host)
    , m_theme(theme)
    , m_text(new ElidedLabel("snack", this))
    , m_action(makeButton({}, "snack", this))
    , m_count(makeLabel({}, "snackCount", this))
    , m_tick(new QTimer(this))
    , m_slide(new QPropertyAnimation(this, "shown", this))
{
    Announcer::install();
    setObjectName(QStringLiteral("snackBar"));
    m_text->setObjectName(QStringLiteral("snackText"));
    m_action->setObjectName(QStringLiteral("snackAction"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Style::margin, 4, 6, 4);
    row->setSpacing(Style::gap);
    row->addWidget(m_text, 1);
    row->addWidget(m_count);
    row->addWidget(m_action);
    m_tick->setInterval(1000);
    connect(m_tick, &QTimer::timeout, this, &SnackBar::onTick);
    connect(m_action, &QPushButton::clicked, this, &SnackBar::onAction);
    m_slide->setEasingCurve(QEasingCurve::OutCubic);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, QWidget *now) {
        if (now == m_action)
            m_focusBefore = before;
    });
    host->installEventFilter(this);
    hide();
}

void SnackBar::show(const QString &text, const QString &action, int seconds)
{
    m_text->setFullText(text);
    m_action->setText(action);
    m_action->setVisible(!action.isEmpty());
    m_count->setVisible(!action.isEmpty());
    m_seconds = seconds;
    showSeconds();
    m_tick->start();
    ensurePolished();
    QWidget::show();
    raise();
    place();
    slideTo(1);
    setAccessibleName({});
    Announcer::announce(*this, action.isEmpty() ? text : tr("%1. %2").arg(text, action));
}

bool SnackBar::offersAction() const
{
    return m_tick->isActive() && !m_action->text().isEmpty();
}

void SnackBar::dismiss()
{
    m_tick->stop();
    if (m_action->hasFocus() && m_focusBefore)
        m_focusBefore->setFocus();
    // Out of the order of the Tab key at once.
    m_action->setEnabled(false);
    slideTo(0);
}

void SnackBar::slideTo(qreal shown)
{
    m_slide->stop();
    const int time = m_theme.motion(Style::popUpMs);
    if (shown > 0)
        m_action->setEnabled(true);
    if (time == 0 || !isVisible()) {
        setShown(shown);
        return;
    }
    m_slide->setDuration(time);
    m_slide->setEndValue(shown);
    m_slide->start();
}

void SnackBar::setShown(qreal shown)
{
    m_shown = shown;
    place();
    if (shown <= 0 && !m_tick->isActive())
        hide();
}

void SnackBar::place()
{
    const QSize room = parentWidget()->size();
    const int width =
        qMin(qMin(widest, qMax(sizeHint().width(), 280)), room.width() - 2 * Style::margin);
    const int way = qRound((Style::scaled(barHeight) + Style::margin) * m_shown);
    setGeometry((room.width() - width) / 2, room.height() - way, width, Style::scaled(barHeight));
}

void SnackBar::showSeconds()
{
    m_count->setText(tr("%1 s").arg(m_seconds));
}

void SnackBar::onTick()
{
    if (underMouse() || m_action->hasFocus())
        return;
    --m_seconds;
    showSeconds();
    if (m_seconds <= 0)
        dismiss();
}

void SnackBar::onAction()
{
    dismiss();
    Q_EMIT actionChosen();
}

bool SnackBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget()) {
        const QEvent::Type type = event->type();
        const bool gone =
            type == QEvent::Hide || (type == QEvent::EnabledChange && !parentWidget()->isEnabled());
        // What it says may come from the safe: it must not be seen while shutters close either.
        if (gone) {
            m_tick->stop();
            m_slide->stop();
            setShown(0);
        }
        if (type == QEvent::Resize)
            place();
    }
    return QFrame::eventFilter(watched, event);
}

void SnackBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        dismiss();
        return;
    }
    QFrame::keyPressEvent(event);
}
