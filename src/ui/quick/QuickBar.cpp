#include "QuickBar.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QToolButton>

namespace {

const int barHeight = 48;
/// The smallest texts are not scaled down as far as the bar would be.
const int leastHeight = 45;
const int barIcon = 18;
const char *const icons[QuickBar::count] = {"key", "credit-card", "id", "wand"};

} // namespace

QuickBar::QuickBar(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
{
    setObjectName(QStringLiteral("footer"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(qMax(Style::scaled(barHeight), leastHeight));
    const QString names[count] = {tr("Logins"), tr("Cards"), tr("Identities"), tr("Generate")};
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Style::spacing, 3, Style::spacing, 2);
    row->setSpacing(0);
    for (int i = 0; i < count; ++i) {
        auto *button = new QToolButton(this);
        button->setObjectName(QStringLiteral("section%1").arg(i));
        button->setProperty("look", QStringLiteral("section"));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIconSize({Style::scaled(barIcon), Style::scaled(barIcon)});
        button->setText(names[i]);
        button->setAccessibleName(names[i]);
        button->setToolTip(tr("%1 (Ctrl+%2)").arg(names[i]).arg(i + 1));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, this,
                [this, i] { Q_EMIT chosen(static_cast<Section>(i)); });
        m_buttons.append(button);
    }
    setSection(Section::Logins);
}

void QuickBar::setSection(Section section)
{
    for (int i = 0; i < count; ++i) {
        const bool chosen = i == static_cast<int>(section);
        m_buttons[i]->setChecked(chosen);
        m_buttons[i]->setIcon(
            m_theme.icon(QLatin1String(icons[i]), chosen ? Palette::Accent : Palette::Muted));
    }
}
