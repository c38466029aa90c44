#include "ItemMenu.h"

#include "ItemActions.h"
#include "ItemKinds.h"
#include "PMListItem.h"
#include "style/Theme.h"

#include <algorithm>

ItemMenu::ItemMenu(ItemActions &actions, const QStringList &ids, const Theme &theme,
                   QWidget *parent)
    : QMenu(parent)
    , m_actions(actions)
    , m_theme(theme)
{
    setObjectName(QStringLiteral("itemMenu"));
    const QVector<PMListItem *> items = actions.items(ids);
    const auto isDeleted = [](const PMListItem *item) { return item->deleted(); };
    if (std::any_of(items.begin(), items.end(), isDeleted)) {
        addForTrash(ids);
        return;
    }
    if (items.size() == 1)
        addForOne(ids.first());
    const bool favorite = std::all_of(items.begin(), items.end(),
                                      [](const PMListItem *item) { return item->favorite(); });
    connect(add("favoriteAction", "star",
                favorite ? tr("Remove from favourites") : tr("Add to favourites")),
            &QAction::triggered, &m_actions,
            [this, ids, favorite] { m_actions.setFavorite(ids, !favorite); });
    // What an attachment holds is not text: it is saved from its own page.
    const auto isText = [](const PMListItem *item) {
        return item->type() != PMListItem::Attachment;
    };
    if (std::any_of(items.begin(), items.end(), isText))
        connect(add("exportAction", "file-export", tr("Export…")), &QAction::triggered, this,
                &ItemMenu::exportRequested);
    addSeparator();
    connect(add("removeAction", "trash", tr("Remove"), "Del"), &QAction::triggered, this,
            &ItemMenu::removeRequested);
}

void ItemMenu::addForOne(const QString &id)
{
    const PMListItem &item = *m_actions.item(id);
    const auto run = [&](QAction *action, void (ItemActions::*slot)(const QString &)) {
        connect(action, &QAction::triggered, &m_actions,
                [this, id, slot] { (m_actions.*slot)(id); });
    };
    const QString use = defaultActionText(item.type());
    if (!use.isEmpty())
        run(add("useAction", defaultActionIcon(item.type()), use, "Ctrl+Return"),
            &ItemActions::runDefault);
    if (!item.url().isEmpty())
        run(add("openAddressAction", "external-link", tr("Open address")),
            &ItemActions::openAddress);
    if (!item.property(userNameField(item.type())).toString().isEmpty())
        run(add("copyUserNameAction", "copy", tr("Copy user name"), "Ctrl+B"),
            &ItemActions::copyUserName);
    const MainSecret secret = mainSecret(item.type());
    if (!item.property(secret.property).toString().isEmpty())
        run(add("copySecretAction", "key", secret.copyText, "Ctrl+C"), &ItemActions::copySecret);
    addSeparator();
    connect(add("editAction", "pencil", tr("Edit"), "F2"), &QAction::triggered, this,
            &ItemMenu::editRequested);
    // The bytes of an attachment belong to one item alone.
    if (item.type() != PMListItem::Attachment)
        connect(add("duplicateAction", "files", tr("Duplicate")), &QAction::triggered, this,
                &ItemMenu::duplicateRequested);
}

void ItemMenu::addForTrash(const QStringList &ids)
{
    connect(add("restoreAction", "arrow-back-up", tr("Restore")), &QAction::triggered, &m_actions,
            [this, ids] { m_actions.restore(ids); });
    addSeparator();
    connect(add("deleteForeverAction", "trash", tr("Delete forever…"), "Del"), &QAction::triggered,
            this, &ItemMenu::removeRequested);
}

QAction *ItemMenu::add(const char *name, const char *icon, const QString &text, const char *keys)
{
    // The keys are the main view's; here they are only told.
    const QString hint = QKeySequence(QLatin1String(keys)).toString(QKeySequence::NativeText);
    QAction *action = addAction(m_theme.icon(QLatin1String(icon), Palette::Text),
                                hint.isEmpty() ? text : text + QLatin1Char('\t') + hint);
    action->setObjectName(QLatin1String(name));
    return action;
}
