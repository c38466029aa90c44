#include "SelectionPage.h"

#include "ItemKinds.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <algorithm>

namespace {

/// "2 logins, 1 passport" would need plural forms of every kind; "Logins: 2" does not.
QString kindsText(const QVector<PMListItem *> &items)
{
    QMap<QString, int> counts;
    for (const PMListItem *item : items)
        ++counts[categoryName({ItemCategory::OfType, item->type()})];
    QStringList parts;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        parts.append(SelectionPage::tr("%1: %2").arg(count.key()).arg(count.value()));
    return parts.join(QStringLiteral(" · "));
}

} // namespace

SelectionPage::SelectionPage(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_title(makeLabel({}, "title", this))
    , m_kinds(makeLabel({}, "muted", this))
    , m_favorite(makeButton({}, "plain", this))
    , m_export(makeButton(tr("Export…"), "plain", this))
    , m_restore(makeButton(tr("Restore"), "plain", this))
    , m_remove(makeButton({}, "plain", this))
{
    setObjectName(QStringLiteral("selectionPage"));
    setAttribute(Qt::WA_StyledBackground);
    m_title->setObjectName(QStringLiteral("selectionTitle"));
    m_kinds->setWordWrap(true);
    m_kinds->setAlignment(Qt::AlignHCenter);
    m_favorite->setObjectName(QStringLiteral("favoriteSelectedButton"));
    m_favorite->setIcon(theme.icon(QStringLiteral("star"), Palette::Text));
    m_export->setObjectName(QStringLiteral("exportSelectedButton"));
    m_export->setIcon(theme.icon(QStringLiteral("file-export"), Palette::Text));
    m_restore->setObjectName(QStringLiteral("restoreSelectedButton"));
    m_restore->setIcon(theme.icon(QStringLiteral("arrow-back-up"), Palette::Text));
    m_remove->setObjectName(QStringLiteral("removeSelectedButton"));
    m_remove->setIcon(theme.icon(QStringLiteral("trash"), Palette::Text));
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addStretch();
    for (QPushButton *button : {m_favorite, m_export, m_restore, m_remove})
        buttons->addWidget(button);
    buttons->addStretch();
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(Style::margin, Style::margin, Style::margin, Style::margin);
    all->setSpacing(Style::spacing);
    all->addStretch(2);
    all->addWidget(m_title, 0, Qt::AlignHCenter);
    all->addWidget(m_kinds);
    all->addSpacing(Style::spacing);
    all->addLayout(buttons);
    all->addStretch(3);
    connect(m_favorite, &QPushButton::clicked, this,
            [this] { Q_EMIT favoriteRequested(!m_allFavorite); });
    connect(m_export, &QPushButton::clicked, this, &SelectionPage::exportRequested);
    connect(m_restore, &QPushButton::clicked, this, &SelectionPage::restoreRequested);
    connect(m_remove, &QPushButton::clicked, this, &SelectionPage::removeRequested);
}

void SelectionPage::setItems(const QVector<PMListItem *> &items)
{
    const auto all = [&items](bool (PMListItem::*has)() const) {
        return std::all_of(items.begin(), items.end(),
                           [has](const PMListItem *item) { return (item->*has)(); });
    };
    const bool trashed = std::any_of(items.begin(), items.end(),
                                     [](const PMListItem *item) { return item->deleted(); });
    m_title->setText(tr("%n items selected", nullptr, items.size()));
    m_kinds->setText(kindsText(items));
    m_allFavorite = all(&PMListItem::favorite);
    m_favorite->setText(m_allFavorite ? tr("Remove from favourites") : tr("Add to favourites"));
    m_favorite->setVisible(!trashed);
    const bool hasText = std::any_of(items.begin(), items.end(), [](const PMListItem *item) {
        return item->type() != PMListItem::Attachment;
    });
    m_export->setVisible(!trashed && hasText);
    m_restore->setVisible(trashed);
    m_remove->setText(all(&PMListItem::deleted) ? tr("Delete forever") : tr("Remove"));
}
