#include "ItemListPane.h"

#include "EmptyState.h"
#include "ItemDelegate.h"
#include "ItemKinds.h"
#include "ItemListView.h"
#include "ItemSelection.h"
#include "NewItemMenu.h"
#include "SearchWords.h"
#include "SiteIcons.h"
#include "SortButton.h"
#include "TrashBar.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"
#include "widgets/TextField.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaEnum>
#include <QStackedWidget>

namespace {

const int smallestWidth = 264;
const int smallestWordWidth = 220; ///< grows with the texts
const int searchIconRoom = 48;     ///< of the icon and the margins of the search field

/// How items come into a category that has none.
QString emptyAdvice(const ItemCategory &category)
{
    if (category.kind == ItemCategory::Favourites)
        return ItemListPane::tr("Mark an item with the star, and it appears here.");
    if (category.kind == ItemCategory::MostUsed)
        return ItemListPane::tr("Items appear here once you have logged in with them.");
    return ItemListPane::tr("Press Ctrl+N to add the first one.");
}

} // namespace

ItemListPane::ItemListPane(ItemListModel &items, const Theme &theme, QWidget *parent,
                           const Clock &clock)
    : QWidget(parent)
    , m_theme(theme)
    , m_filter(new ItemFilterModel(this, clock))
    , m_icons(new SiteIcons(this))
{
    setObjectName(QStringLiteral("listPane"));
    setAttribute(Qt::WA_StyledBackground);
    m_filter->setSourceModel(&items);
    m_filter->setTerms(searchTerms());
    makeSearch();
    makeList(clock);
    m_categoryName = new ElidedLabel("muted", this);
    m_sort = new SortButton(theme, this);
    m_sort->setOrder(m_filter->sortBy());
    connect(m_sort, &SortButton::orderChosen, this, &ItemListPane::onOrderChosen);
    m_trashBar = new TrashBar(this);
    connect(m_trashBar, &TrashBar::restoreRequested, this, &ItemListPane::restoreAllRequested);
    connect(m_trashBar, &TrashBar::emptyRequested, this, &ItemListPane::emptyTrashRequested);
    layOut();
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &ItemListPane::showEmptyState);
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, &ItemListPane::showEmptyState);
    connect(m_filter, &QAbstractItemModel::modelReset, this, &ItemListPane::showEmptyState);
    showEmptyState();
}

void ItemListPane::makeSearch()
{
    m_search = new TextField(this);
    m_search->setObjectName(QStringLiteral("searchField"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setToolTip(searchHelp());
    m_search->setAccessibleDescription(searchHelp());
    m_search->addAction(m_theme.icon(QStringLiteral("search"), Palette::Muted),
                        QLineEdit::LeadingPosition);
    m_search->installEventFilter(this);
    m_searchKey = makeLabel(tr("Ctrl F"), "key", m_search);
    m_searchKey->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        showPlaceholder();
        m_filter->setSearch(text);
        showEmptyState();
        Q_EMIT searched();
    });

    m_new = makeIconButton(m_theme.icon(QStringLiteral("plus"), Palette::OnAccent), tr("New item"),
                           "primary", this);
    m_new->setObjectName(QStringLiteral("newItemButton"));
    m_new->setToolTip(tr("New item (Ctrl+N)"));
    auto *kinds = new NewItemMenu(m_theme, m_new);
    m_new->setMenu(kinds);
    m_new->setPopupMode(QToolButton::InstantPopup);
    connect(kinds, &NewItemMenu::chosen, this, &ItemListPane::createRequested);
}

void ItemListPane::makeList(const Clock &clock)
{
    m_list = new ItemListView(this);
    m_list->setObjectName(QStringLiteral("itemList"));
    m_list->setAccessibleName(tr("Items"));
    m_selection = new ItemSelection(*m_list, *m_filter, this);
    connect(m_selection, &ItemSelection::chosen, this, &ItemListPane::selectionChosen);
    connect(m_icons, &SiteIcons::changed, m_list->viewport(), QOverload<>::of(&QWidget::update));
    m_list->setItemDelegate(new ItemDelegate(m_theme, m_icons, m_list, clock));
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->installEventFilter(this);
    connect(m_list, &QListView::doubleClicked, this, [this](const QModelIndex &index) {
        Q_EMIT activated(index.data(ItemListModel::IdRole).toString());
    });
    connect(m_list, &QListView::clicked, this, [this] {
        if (QApplication::keyboardModifiers() == Qt::NoModifier)
            Q_EMIT opened();
    });
    connect(m_list, &QWidget::customContextMenuRequested, this, &ItemListPane::requestMenu);
    m_empty = new EmptyState(m_theme, this);
    m_empty->button()->setObjectName(QStringLiteral("addFirstLoginButton"));
    connect(m_empty, &EmptyState::pressed, this,
            [this] { Q_EMIT createRequested(PMListItem::Login); });
    m_empty->secondButton()->setObjectName(QStringLiteral("bringOverButton"));
    connect(m_empty, &EmptyState::secondPressed, this, &ItemListPane::bringOverRequested);
    m_stack = new QStackedWidget(this);
    m_stack->addWidget(m_list);
    m_stack->addWidget(m_empty);
}

void ItemListPane::requestMenu(const QPoint &position)
{
    if (selectedIds().isEmpty())
        return;
    // Asked for by a key, it opens at the row.
    const QModelIndex current = m_list->currentIndex();
    const bool onRow = m_list->indexAt(position).isValid();
    const QPoint place = onRow ? position : m_list->visualRect(current).center();
    Q_EMIT menuRequested(m_list->viewport()->mapToGlobal(place));
}

void ItemListPane::onOrderChosen(ItemFilterModel::SortBy order)
{
    m_filter->setSortBy(order);
    m_list->scrollTo(m_list->currentIndex());
    Q_EMIT orderChosen();
}

QString ItemListPane::order() const
{
    return QString::fromLatin1(
        QMetaEnum::fromType<ItemFilterModel::SortBy>().valueToKey(int(m_filter->sortBy())));
}

void ItemListPane::setOrder(const QString &name)
{
    bool known = false;
    const int value = QMetaEnum::fromType<ItemFilterModel::SortBy>().keyToValue(
        name.toLatin1().constData(), &known);
    if (!known)
        return;
    const auto order = static_cast<ItemFilterModel::SortBy>(value);
    m_sort->setOrder(order);
    m_filter->setSortBy(order);
}

void ItemListPane::layOut()
{
    auto *top = new QHBoxLayout;
    top->setContentsMargins(12, 12, 12, 0);
    top->setSpacing(Style::spacing);
    top->addWidget(m_search, 1);
    top->addWidget(m_new);
    auto *head = new QHBoxLayout;
    head->setContentsMargins(16, 6, 10, 2);
    head->addWidget(m_categoryName, 1);
    head->addWidget(m_sort);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addLayout(top);
    all->addLayout(head);
    all->addWidget(m_trashBar);
    all->addSpacing(2);
    all->addWidget(m_stack, 1);
    setTabOrder(m_search, m_new);
    setTabOrder(m_new, m_sort);
    QWidget *before = m_sort;
    for (QPushButton *button : m_trashBar->findChildren<QPushButton *>()) {
        setTabOrder(before, button);
        before = button;
    }
    setTabOrder(before, m_list);
    setTabOrder(m_list, m_empty->button());
    setTabOrder(m_empty->button(), m_empty->secondButton());
}

void ItemListPane::setCategory(const ItemCategory &category)
{
    m_selection->setCategoryChanging(true);
    m_filter->setCategory(category);
    m_selection->setCategoryChanging(false);
    m_categoryName->setFullText(categoryName(category));
    // That category has an order of its own.
    m_sort->setVisible(category.kind != ItemCategory::MostUsed);
    showEmptyState();
}

QSize ItemListPane::minimumSizeHint() const
{
    return QWidget::minimumSizeHint().expandedTo(
        {qMax(smallestWidth, Style::scaled(smallestWordWidth)), 0});
}

void ItemListPane::setIconFolder(const QString &folder)
{
    m_icons->setFolder(folder);
}

void ItemListPane::setCount(int inCategory, bool safeIsEmpty)
{
    m_icons->retryMissing();
    m_inCategory = inCategory;
    m_safeIsEmpty = safeIsEmpty;
    showPlaceholder();
    showEmptyState();
}

void ItemListPane::clearSearch()
{
    m_search->clear();
}

QString ItemListPane::currentId() const
{
    return m_selection->currentId();
}

QStringList ItemListPane::selectedIds() const
{
    return m_selection->ids();
}

bool ItemListPane::contains(const QString &id) const
{
    return m_filter->indexOf(id).isValid();
}

QString ItemListPane::firstId() const
{
    return m_filter->index(0, 0).data(ItemListModel::IdRole).toString();
}

void ItemListPane::setCurrent(const QString &id)
{
    m_selection->setCurrent(id);
}

void ItemListPane::selectAll()
{
    m_list->selectAll();
}

void ItemListPane::onDayChanged()
{
    m_filter->refresh();
    m_list->viewport()->update();
}

void ItemListPane::focusSearch()
{
    m_search->setFocus();
    m_search->selectAll();
}

void ItemListPane::focusList()
{
    m_list->setFocus();
}

void ItemListPane::takeFocus()
{
    if (m_stack->currentWidget() == m_empty && !m_empty->button()->text().isEmpty())
        m_empty->button()->setFocus();
    else
        focusSearch();
}

void ItemListPane::showEmptyState()
{
    const bool trash = category().kind == ItemCategory::Trash;
    m_trashBar->setVisible(trash && m_inCategory > 0);
    m_new->setVisible(!trash);
    if (m_filter->rowCount() > 0) {
        m_stack->setCurrentWidget(m_list);
        return;
    }
    if (!m_search->text().isEmpty())
        m_empty->setContent(QStringLiteral("search"), tr("No items found"),
                            tr("Try fewer words, or press Esc to see all items.") +
                                QStringLiteral("\n\n") + searchHelp());
    else if (trash)
        m_empty->setContent(QStringLiteral("trash"), tr("No items in this category"),
                            tr("What you remove stays here until you delete it forever."));
    else if (m_safeIsEmpty)
        m_empty->setContent(QStringLiteral("key"), tr("Your safe is empty"),
                            tr("Keep your user names and passwords here."),
                            tr("Add your first login"), tr("Bring passwords over…"));
    else
        m_empty->setContent(categoryIcon(category()), tr("No items in this category"),
                            emptyAdvice(category()));
    m_stack->setCurrentWidget(m_empty);
}

bool ItemListPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search && event->type() == QEvent::Resize)
        showPlaceholder();
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        // An Enter still held from a button elsewhere is not meant for the item.
        if (isEnter && key->isAutoRepeat())
            return true;
        const Qt::KeyboardModifiers modifiers = key->modifiers() & ~Qt::KeypadModifier;
        if (isEnter && modifiers == Qt::NoModifier) {
            if (!currentId().isEmpty())
                Q_EMIT activated(currentId());
            return true;
        }
        if (modifiers == Qt::NoModifier &&
            (watched == m_search ? onSearchKey(key->key()) : onListKey(key->key())))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool ItemListPane::onSearchKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        clearSearch();
        return true;
    case Qt::Key_Down:
        if (m_filter->rowCount() == 0)
            return true;
        focusList();
        if (selectedIds().isEmpty())
            m_list->setCurrentIndex(m_filter->index(0, 0));
        return true;
    default:
        return false;
    }
}

bool ItemListPane::onListKey(int key)
{
    switch (key) {
    case Qt::Key_Right:
        if (!selectedIds().isEmpty())
            Q_EMIT opened();
        return true;
    case Qt::Key_Delete:
        if (!selectedIds().isEmpty())
            Q_EMIT removeRequested(selectedIds());
        return true;
    case Qt::Key_Up:
        if (m_list->currentIndex().row() > 0)
            return false;
        focusSearch();
        return true;
    default:
        return false;
    }
}

void ItemListPane::showPlaceholder()
{
    // In a narrow list the key goes first, then the number.
    const int room = m_search->width() - searchIconRoom;
    const QSize size = m_searchKey->sizeHint();
    const QString full = tr("Search %1").arg(itemCountText(m_inCategory));
    const int needed = m_search->fontMetrics().horizontalAdvance(full) + Style::spacing;
    m_search->setPlaceholderText(needed <= room ? full : tr("Search"));
    m_searchKey->setVisible(m_search->text().isEmpty() && needed + size.width() <= room);
    m_searchKey->setGeometry(m_search->width() - size.width() - 8,
                             (m_search->height() - size.height()) / 2, size.width(), size.height());
}
