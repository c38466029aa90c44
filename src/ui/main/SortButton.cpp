#include "SortButton.h"

#include "style/Theme.h"

#include <QActionGroup>
#include <QMenu>

SortButton::SortButton(const Theme &theme, QWidget *parent)
    : QPushButton(parent)
{
    setObjectName(QStringLiteral("sortButton"));
    setProperty("look", QStringLiteral("quiet"));
    setCursor(Qt::PointingHandCursor);
    setIcon(theme.icon(QStringLiteral("chevron-down"), Palette::Muted));
    setIconSize(QSize(14, 14));
    auto *menu = new QMenu(this);
    menu->setLayoutDirection(layoutDirection());
    setLayoutDirection(Qt::RightToLeft);

    using SortBy = ItemFilterModel::SortBy;
    const QVector<QPair<SortBy, QString>> choices = {
        {SortBy::Title, tr("Title")},           {SortBy::Domain, tr("Web site")},
        {SortBy::MostUsed, tr("Most used")},    {SortBy::LastUsed, tr("Last used")},
        {SortBy::Modified, tr("Last changed")}, {SortBy::Created, tr("Newest")}};
    m_choices = new QActionGroup(menu);
    for (const auto &choice : choices) {
        QAction *action = menu->addAction(choice.second);
        action->setCheckable(true);
        action->setData(QVariant::fromValue(choice.first));
        m_choices->addAction(action);
        connect(action, &QAction::triggered, this, [this, choice] {
            setOrder(choice.first);
            Q_EMIT orderChosen(choice.first);
        });
    }
    setMenu(menu);
}

void SortButton::setOrder(ItemFilterModel::SortBy order)
{
    const QList<QAction *> actions = m_choices->actions();
    for (QAction *action : actions) {
        if (action->data().value<ItemFilterModel::SortBy>() != order)
            continue;
        action->setChecked(true);
        setText(tr("Sort: %1").arg(action->text()));
    }
}
