#pragma once

#include "ItemQuery.h"
#include "QuickItems.h"

#include <QTimer>
#include <QWidget>

class ClipboardKeeper;
class EmptyState;
class QListView;
class QStackedWidget;
class QuickDelegate;
class SiteIcons;
class TextField;
class Theme;

/// The items of quick access with the field that finds them. The keyboard stays in the field; its
/// arrow keys go through the list.
class QuickList : public QWidget
{
    Q_OBJECT

public:
    struct Parts
    {
        const ItemListModel &items;
        SiteIcons &icons;
        ClipboardKeeper &clipboard;
    };

    /// The parts outlive the list.
    QuickList(const Parts &parts, const Theme &theme, QWidget *parent);

    /// Shows what belongs to another page, with the first item chosen and nothing searched for.
    void start(PMListItem::Type kind, const QString &host, const QStringList &pageIds);
    void setKind(PMListItem::Type kind);
    void setPage(const QString &host, const QStringList &ids);
    /// Whether Enter fills; else it opens the page of a login.
    void setFilling(bool filling);
    /// While it is not active it does not follow changes.
    void setActive(bool active);
    void takeFocus();

    /// Another item was just chosen without the user: for a moment keys do nothing with it.
    bool isSettling() const { return m_settling.isActive(); }
    /// The id of the chosen item; empty when there is none.
    QString chosenId() const;

Q_SIGNALS:
    void activated(const QString &id);
    void secretWanted(const QString &id);
    void userNameWanted(const QString &id);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeSearch();
    void makeList(SiteIcons &icons);
    bool onKey(const QKeyEvent &key);
    bool onCommand(int key);
    bool step(int key);
    void choose(int row);
    void onReset();
    void showEmptyState();

    const Theme &m_theme;
    QuickItems m_items;
    SearchTerms m_terms;
    TextField *m_search = nullptr;
    QListView *m_list = nullptr;
    QuickDelegate *m_delegate = nullptr;
    EmptyState *m_empty = nullptr;
    QStackedWidget *m_stack = nullptr;
    QTimer m_settling;
    QString m_kept; ///< the item that the user went to; empty while the first one is chosen
};
