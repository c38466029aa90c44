#include "SafeSwitcher.h"

#include "cloud/CloudTexts.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"

#include <QSvgWidget>

namespace {

const int switcherHeight = 52;
const int cloudIconSize = 14;

} // namespace

SafeSwitcher::SafeSwitcher(const Theme &theme, QWidget *parent)
    : QPushButton(parent)
    , m_theme(theme)
    , m_name(new ElidedLabel("heading", this))
    , m_cloudIcon(new QLabel(this))
    , m_state(new ElidedLabel("label", this))
{
    setObjectName(QStringLiteral("safeSwitcher"));
    setProperty("look", QStringLiteral("switcher"));
    setCursor(Qt::PointingHandCursor);
    setFixedHeight(Style::scaled(switcherHeight));

    auto *crystal = new QSvgWidget(QStringLiteral(":/crystal.svg"), this);
    crystal->setFixedSize(34, 34);
    m_arrow = new QLabel(this);
    const auto showArrow = [this] {
        m_arrow->setPixmap(m_theme.icon(QStringLiteral("selector"), Palette::SidebarMuted)
                               .pixmap(m_arrow->window()->windowHandle(), QSize(16, 16)));
    };
    showArrow();
    connect(&theme, &Theme::changed, this, showArrow);
    connect(&theme, &Theme::changed, this, &SafeSwitcher::showCloud);
    m_cloudIcon->setObjectName(QStringLiteral("cloudIcon"));
    m_cloudIcon->hide();
    m_state->setObjectName(QStringLiteral("safeState"));
    auto *state = new QHBoxLayout;
    state->setSpacing(4);
    state->addWidget(m_cloudIcon);
    state->addWidget(m_state, 1);
    auto *names = new QVBoxLayout;
    names->setSpacing(1);
    names->addStretch();
    names->addWidget(m_name);
    names->addLayout(state);
    names->addStretch();
    m_row = new QHBoxLayout(this);
    m_row->setSpacing(9);
    m_row->addWidget(crystal);
    m_row->addLayout(names);
    m_row->addWidget(m_arrow);
    const QList<QWidget *> inner = findChildren<QWidget *>();
    for (QWidget *widget : inner)
        widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    setFolded(false);
}

void SafeSwitcher::setSafe(const QString &name)
{
    m_name->setFullText(name);
    describe();
}

void SafeSwitcher::setState(const QString &state)
{
    m_plainState = state;
    showCloud();
}

void SafeSwitcher::setCloud(const CloudStatus &status, const QDateTime &now)
{
    m_cloud = status;
    m_cloudLine = CloudTexts::line(status, now);
    showCloud();
}

void SafeSwitcher::showCloud()
{
    const QString word = CloudTexts::word(m_cloud);
    m_state->setFullText(word.isEmpty() ? m_plainState : word);
    m_cloudIcon->setVisible(!word.isEmpty() && !m_folded);
    if (!word.isEmpty()) {
        const int size = Style::scaled(cloudIconSize);
        m_cloudIcon->setPixmap(m_theme.icon(CloudTexts::icon(m_cloud), Palette::SidebarMuted)
                                   .pixmap(window()->windowHandle(), QSize(size, size)));
    }
    describe();
}

void SafeSwitcher::setFolded(bool folded)
{
    m_folded = folded;
    for (QWidget *part : {static_cast<QWidget *>(m_name), static_cast<QWidget *>(m_state),
                          static_cast<QWidget *>(m_arrow)})
        part->setVisible(!folded);
    m_row->setContentsMargins(folded ? 0 : 6, 0, folded ? 0 : 6, 0);
    // The crystal, in the middle when it is alone.
    m_row->setStretch(0, folded ? 1 : 0);
    m_row->setStretch(1, folded ? 0 : 1);
    m_row->setAlignment(m_row->itemAt(0)->widget(), Qt::AlignCenter);
    showCloud();
}

void SafeSwitcher::describe()
{
    setAccessibleName(tr("Safe: %1").arg(m_name->fullText()));
    const QString advice = CloudTexts::advice(m_cloud);
    const QString cloud = advice.isEmpty() ? m_cloudLine : m_cloudLine + QLatin1Char('\n') + advice;
    setAccessibleDescription(m_cloudLine.isEmpty() ? m_plainState
                                                   : m_plainState + QStringLiteral(". ") + cloud);
    const QString state = m_cloudLine.isEmpty() ? m_plainState : cloud;
    // Its words are nowhere else where there is no place for them.
    if (m_folded)
        setToolTip(m_name->fullText() + QLatin1Char('\n') + state);
    else
        setToolTip(m_cloudLine.isEmpty() ? tr("Switch to another safe") : cloud);
}
