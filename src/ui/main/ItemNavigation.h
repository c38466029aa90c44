#pragma once

#include "ItemCategory.h"
#include "MainParts.h"

#include <QObject>
#include <QTimer>
#include <QVariantMap>

/// Keeps the category, the selection in the list and what is shown of it in step, and asks before
/// an edit is left.
class ItemNavigation : public QObject
{
    Q_OBJECT

public:
    explicit ItemNavigation(const MainParts &parts, QObject *parent);

    void showCategory(const ItemCategory &category);
    /// Shows what is selected: one item, several, or that there is none.
    void showCurrent();
    /// Shows it now if that was to follow.
    void settle();
    /// Selects the first item of the list and shows it.
    void showFirst();
    /// Selects an item in the list, which a search or a category may hide until then.
    void goTo(const QString &id);
    /// Selects an item that was just put into the safe.
    void onSaved(const QString &id);
    /// Back to the item's page, after a question about what was changed.
    void leaveEditor();

    /// Category and item, to come back to.
    QVariantMap place() const;
    void goToPlace(const QVariantMap &place);

    /// Items came, went or changed.
    void onContentChanged();

private:
    void onCategoryChosen(const ItemCategory &category);
    void onSelectionChosen();
    void onSearched();
    void onDiscarded();

    void follow();

    MainParts m_parts;
    QTimer m_following; ///< what is shown comes a moment after the list
};
