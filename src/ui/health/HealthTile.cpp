#include "HealthTile.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

namespace {

const int smallestWidth = 100;
const int usualHeight = 92;

} // namespace

HealthTile::HealthTile(const QString &text, const QString &icon, Palette::Role color,
                       const Theme &theme, QWidget *parent)
    : QPushButton(parent)
    , m_text(text)
    , m_count(makeLabel({}, "title", this))
{
    setProperty("look", QStringLiteral("tile"));
    setCheckable(true);
    // All of them are of one width.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMinimumWidth(smallestWidth);
    setCursor(Qt::PointingHandCursor);
    auto *picture = new QLabel(this);
    const auto showIcon = [picture, icon, color, &theme] {
        picture->setPixmap(theme.icon(icon, color)
                               .pixmap(picture->window()->windowHandle(),
                                       QSize(Style::iconSize, Style::iconSize)));
    };
    showIcon();
    connect(&theme, &Theme::changed, picture, showIcon);
    auto *name = makeLabel(text, "muted", this);
    name->setWordWrap(true);
    auto *top = new QHBoxLayout;
    top->addWidget(m_count, 1);
    top->addWidget(picture, 0, Qt::AlignTop);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(14, 10, 12, 10);
    all->setSpacing(4);
    all->addLayout(top);
    all->addWidget(name);
    all->addStretch();
    for (QLabel *label : {m_count, picture, name})
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    setCount(0);
}

void HealthTile::setCount(int count)
{
    m_count->setText(QString::number(count));
    setAccessibleName(tr("%1: %2").arg(m_text).arg(count));
}

QSize HealthTile::sizeHint() const
{
    return layout()->sizeHint().expandedTo({smallestWidth, usualHeight});
}
