#include "NewItemMenu.h"

#include "ItemKinds.h"
#include "style/Theme.h"

NewItemMenu::NewItemMenu(const Theme &theme, QWidget *parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("newItemMenu"));
    setAccessibleName(tr("New item"));
    for (int kind = PMListItem::Login; kind < PMListItem::UndefinedItem; ++kind) {
        const auto type = static_cast<PMListItem::Type>(kind);
        QAction *action =
            addAction(theme.icon(itemKindIcon(type), Palette::Text), itemKindName(type));
        action->setData(kind);
        connect(action, &QAction::triggered, this, [this, type] { Q_EMIT chosen(type); });
    }
}
