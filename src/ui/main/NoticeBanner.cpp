#include "NoticeBanner.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Announcer.h"
#include "widgets/Controls.h"

#include <QBoxLayout>

namespace {

const int iconSide = 20;
const int roomyWidth = 700; ///< from which on the buttons stand beside the text

} // namespace

NoticeBanner::NoticeBanner(const QString &icon, const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_heading(makeLabel({}, "heading", this))
    , m_text(makeLabel({}, "muted", this))
    , m_middle(new QHBoxLayout)
    , m_buttons(new QHBoxLayout)
{
    Announcer::install();
    setProperty("look", QStringLiteral("banner"));
    auto *picture = new QLabel(this);
    const auto showIcon = [picture, icon, &theme] {
        picture->setPixmap(
            theme.icon(icon, Palette::Text)
                .pixmap(picture->window()->windowHandle(), QSize(iconSide, iconSide)));
    };
    showIcon();
    connect(&theme, &Theme::changed, this, showIcon);
    m_heading->setObjectName(QStringLiteral("noticeHeading"));
    m_heading->setWordWrap(true);
    m_text->setObjectName(QStringLiteral("noticeText"));
    m_text->setWordWrap(true);
    m_close = makeIconButton(theme.icon(QStringLiteral("x"), Palette::Text), tr("Dismiss"), "plain",
                             this);
    m_close->setObjectName(QStringLiteral("noticeCloseButton"));
    connect(m_close, &QToolButton::clicked, this, &NoticeBanner::dismiss);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_heading);
    texts->addWidget(m_text);
    m_buttons->setSpacing(Style::spacing);
    m_buttons->addStretch();
    m_middle->setSpacing(Style::spacing);
    m_middle->addLayout(texts, 1);
    m_middle->addLayout(m_buttons);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Style::margin, 10, Style::gap, 10);
    row->setSpacing(Style::gap);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addLayout(m_middle, 1);
    row->addWidget(m_close);
    // The buttons give way to the text, which the layout does not know.
    row->setSizeConstraint(QLayout::SetNoConstraint);
    hide();
}

QPushButton *NoticeBanner::addButton(const QString &text, const char *look, const char *name)
{
    QPushButton *button = makeButton(text, look, this);
    button->setObjectName(QLatin1String(name));
    m_buttons->insertWidget(m_buttons->count() - 1, button);
    // Behind the buttons for Tab too.
    setTabOrder(button, m_close);
    return button;
}

void NoticeBanner::resizeEvent(QResizeEvent *event)
{
    m_middle->setDirection(width() < Style::scaled(roomyWidth) ? QBoxLayout::TopToBottom
                                                               : QBoxLayout::LeftToRight);
    QFrame::resizeEvent(event);
}

void NoticeBanner::tell(const QString &heading, const QString &text)
{
    m_heading->setText(heading);
    m_text->setText(text);
    setVisible(true);
    Announcer::announce(*this, heading);
}

void NoticeBanner::dismiss()
{
    hide();
    m_heading->clear();
    m_text->clear();
}
