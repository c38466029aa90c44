#include "TitleBar.h"

#include "Controls.h"
#include "WindowMover.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QEvent>

namespace {

const QSize buttonSize(32, 28);
const int buttonGap = 4;
const int edge = 7;
const int glyph = 16;

} // namespace

TitleBar::TitleBar(const Theme &theme, Buttons buttons, QWidget *window)
    : QWidget(window)
    , m_theme(theme)
    , m_window(window)
{
    setObjectName(QStringLiteral("titleBar"));
    setFixedHeight(WindowMover::stripHeight);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(edge, 5, edge, 5);
    row->setSpacing(buttonGap);
    if (buttons == All) {
        m_minimise = addButton("minimiseButton", tr("Minimise"),
                               [window] { WindowMover::minimise(*window); });
        m_maximise = addButton("maximiseButton", tr("Maximise"),
                               [window] { WindowMover::toggleMaximised(*window); });
    }
    m_close = addButton("closeButton", tr("Close"), [window] { window->close(); });
    m_window->installEventFilter(this);
    showIcons();
}

QToolButton *TitleBar::addButton(const char *objectName, const QString &name,
                                 const std::function<void()> &action)
{
    QToolButton *button = makeIconButton({}, name, "title", this);
    button->setObjectName(QLatin1String(objectName));
    button->setIconSize(QSize(glyph, glyph));
    button->setFixedSize(buttonSize);
    button->setCursor(Qt::ArrowCursor);
    // As in every window the keyboard has the window's own keys and menu for them.
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, action);
    layout()->addWidget(button);
    return button;
}

QIcon TitleBar::icon(const char *name) const
{
    const QString file = QLatin1String(name);
    return m_onDark ? m_theme.lockIcon(file, Palette::SidebarText)
                    : m_theme.icon(file, Palette::Muted);
}

void TitleBar::showTitle()
{
    m_title = makeLabel(m_window->windowTitle(), "windowTitle", this);
    m_title->setObjectName(QStringLiteral("titleText"));
    auto *row = static_cast<QHBoxLayout *>(layout());
    row->setContentsMargins(Style::gap, 5, edge, 5);
    row->insertWidget(0, m_title, 1);
}

void TitleBar::setHeader(QWidget *header)
{
    delete m_title;
    m_title = nullptr;
    auto *row = static_cast<QHBoxLayout *>(layout());
    row->setContentsMargins(Style::margin, Style::gap, edge, Style::spacing);
    row->insertWidget(0, header, 1);
    setMinimumHeight(0);
    setMaximumHeight(QWIDGETSIZE_MAX);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TitleBar::setOnDark(bool onDark)
{
    m_onDark = onDark;
    for (QToolButton *button : {m_minimise, m_maximise, m_close}) {
        if (button)
            setStyleProperty(*button, "dark", onDark);
    }
    showIcons();
}

void TitleBar::showIcons()
{
    m_close->setIcon(icon("x"));
    if (!m_maximise)
        return;
    m_minimise->setIcon(icon("minus"));
    const bool maximised = m_window->isMaximized();
    const QString name = maximised ? tr("Restore") : tr("Maximise");
    m_maximise->setIcon(icon(maximised ? "squares" : "square"));
    m_maximise->setAccessibleName(name);
    m_maximise->setToolTip(name);
}

bool TitleBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::WindowStateChange)
        showIcons();
    if (watched == m_window && event->type() == QEvent::WindowTitleChange && m_title)
        m_title->setText(m_window->windowTitle());
    return QWidget::eventFilter(watched, event);
}
