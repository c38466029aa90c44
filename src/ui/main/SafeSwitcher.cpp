#include "SafeSwitcher.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"

#include <QSvgWidget>

namespace {

const int switcherHeight = 52;

} // namespace

SafeSwitcher::SafeSwitcher(const Theme &theme, QWidget *parent)
    : QPushButton(parent)
    , m_theme(theme)
    , m_name(new ElidedLabel("heading", this))
    , m_state(new ElidedLabel("label", this))
{
    setObjectName(QStringLiteral("safeSwitcher"));
    setProperty("look", QStringLiteral("switcher"));
    setCursor(Qt::PointingHandCursor);
    setToolTip(tr("Switch to another safe"));
    setFixedHeight(Style::scaled(switcherHeight));

    auto *crystal = new QSvgWidget(QStringLiteral(":/crystal.svg"), this);
    crystal->setFixedSize(34, 34);
    auto *arrow = new QLabel(this);
    const auto showArrow = [this, arrow] {
        arrow->setPixmap(m_theme.icon(QStringLiteral("selector"), Palette::SidebarMuted)
                             .pixmap(arrow->window()->windowHandle(), QSize(16, 16)));
    };
    showArrow();
    connect(&theme, &Theme::changed, this, showArrow);
    auto *names = new QVBoxLayout;
    names->setSpacing(1);
    names->addStretch();
    names->addWidget(m_name);
    names->addWidget(m_state);
    names->addStretch();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(6, 0, 6, 0);
    row->setSpacing(9);
    row->addWidget(crystal);
    row->addLayout(names, 1);
    row->addWidget(arrow);
    const QList<QWidget *> inner = findChildren<QWidget *>();
    for (QWidget *widget : inner)
        widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    describe();
}

void SafeSwitcher::setSafe(const QString &name)
{
    m_name->setFullText(name);
    describe();
}

void SafeSwitcher::setState(const QString &state)
{
    m_state->setFullText(state);
    describe();
}

void SafeSwitcher::describe()
{
    setAccessibleName(tr("Safe: %1").arg(m_name->fullText()));
    setAccessibleDescription(m_state->fullText());
}
