#include "EmptyState.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QBoxLayout>

namespace {

const int pictureSize = 40;

} // namespace

EmptyState::EmptyState(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_icon(new QLabel(this))
    , m_title(makeLabel({}, "heading", this))
    , m_advice(makeLabel({}, "muted", this))
    , m_button(makeButton({}, "primary", this))
    , m_second(makeButton({}, "link", this))
{
    m_title->setWordWrap(true);
    m_title->setAlignment(Qt::AlignHCenter);
    m_advice->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(Style::margin, Style::margin, Style::margin, Style::margin);
    column->setSpacing(Style::spacing);
    column->addStretch(2);
    column->addWidget(m_icon, 0, Qt::AlignHCenter);
    column->addWidget(m_title);
    m_advice->setAlignment(Qt::AlignHCenter);
    column->addWidget(m_advice);
    column->addSpacing(Style::spacing);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    column->addWidget(m_second, 0, Qt::AlignHCenter);
    column->addStretch(3);
    connect(m_button, &QPushButton::clicked, this, &EmptyState::pressed);
    connect(m_second, &QPushButton::clicked, this, &EmptyState::secondPressed);
    connect(&theme, &Theme::changed, this, &EmptyState::showIcon);
}

void EmptyState::setContent(const QString &icon, const QString &title, const QString &advice,
                            const QString &button, const QString &second)
{
    m_iconName = icon;
    showIcon();
    m_title->setText(title);
    m_advice->setText(advice);
    m_advice->setVisible(!advice.isEmpty());
    m_button->setText(button);
    m_button->setVisible(!button.isEmpty());
    m_second->setText(second);
    m_second->setVisible(!second.isEmpty());
    fitIcon();
}

void EmptyState::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitIcon();
}

void EmptyState::fitIcon()
{
    // Where little height is left the words are what matters.
    const int icon = m_icon->isHidden() ? pictureSize + Style::spacing : 0;
    m_icon->setVisible(layout()->heightForWidth(width()) + icon <= height());
}

void EmptyState::showIcon()
{
    const QSize size(pictureSize, pictureSize);
    m_icon->setPixmap(
        m_theme.icon(m_iconName, Palette::Muted).pixmap(window()->windowHandle(), size));
}
