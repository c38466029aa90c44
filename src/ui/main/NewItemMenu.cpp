#include "NewItemMenu.h"

#include "ItemCategory.h"
#include "ItemKinds.h"
#include "style/Theme.h"

NewItemMenu::NewItemMenu(const Theme &theme, QWidget *parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("newItemMenu"));
    setAccessibleName(tr("New item"));
    // In the order of the sidebar.
    for (const ItemCategory &category : ItemCategory::all()) {
        if (category.kind != ItemCategory::OfType)
            continue;
        const PMListItem::Type type = category.type;
        QAction *action =
            addAction(theme.icon(itemKindIcon(type), Palette::Text), itemKindName(type));
        action->setData(static_cast<int>(type));
        connect(action, &QAction::triggered, this, [this, type] { Q_EMIT chosen(type); });
    }
}
