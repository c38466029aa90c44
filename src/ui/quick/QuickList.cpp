#include "QuickList.h"

#include "QuickDelegate.h"
#include "main/CopyNotice.h"
#include "main/EmptyState.h"
#include "main/SearchWords.h"
#include "main/SiteIcons.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/TextField.h"

#include <QHash>
#include <QKeyEvent>
#include <QListView>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

const int pageSteps = 6;
/// How long a user who was about to press a key may go on to see what it would have hit.
const int settleMs = 400;

} // namespace

QuickList::QuickList(const Parts &parts, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_items(parts.items)
    , m_terms(searchTerms())
{
    makeSearch();
    makeList(parts.icons);
    auto *notice = new CopyNotice(parts.clipboard, theme, this);
    auto *head = new QVBoxLayout;
    head->setContentsMargins(Style::gap, Style::gap, Style::gap, 0);
    head->addWidget(m_search);
    auto *foot = new QVBoxLayout;
    foot->setContentsMargins(Style::margin, 0, Style::margin, 0);
    foot->addWidget(notice);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addLayout(head);
    all->addWidget(m_stack, 1);
    all->addLayout(foot);
    setFocusProxy(m_search);
    m_settling.setSingleShot(true);
    m_settling.setInterval(settleMs);
    connect(&m_items, &QAbstractItemModel::modelReset, this, &QuickList::onReset);
    onReset();
}

void QuickList::makeSearch()
{
    m_search = new TextField(this);
    m_search->setObjectName(QStringLiteral("quickSearch"));
    m_search->setPlaceholderText(tr("Search logins, cards, identities"));
    m_search->setAccessibleName(tr("Search logins, cards, identities"));
    m_search->setAccessibleDescription(
        tr("The arrow keys choose an item, Enter fills it. Ctrl+C copies its password, Ctrl+B its "
           "user name."));
    m_search->addAction(m_theme.icon(QStringLiteral("search"), Palette::Muted),
                        QLineEdit::LeadingPosition);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_kept.clear();
        m_items.setSearch(text, m_terms);
    });
}

void QuickList::makeList(SiteIcons &icons)
{
    m_list = new QListView(this);
    m_list->setObjectName(QStringLiteral("quickList"));
    m_list->setAccessibleName(tr("Items"));
    m_delegate = new QuickDelegate(m_theme, &icons, m_list);
    m_list->setItemDelegate(m_delegate);
    connect(&icons, &SiteIcons::changed, m_list->viewport(), QOverload<>::of(&QWidget::update));
    m_list->setModel(&m_items);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &index) {
        if (const PMListItem *item = m_items.itemAt(index.row()))
            Q_EMIT activated(item->id());
    });
    m_empty = new EmptyState(m_theme, this);
    m_empty->setObjectName(QStringLiteral("quickEmpty"));
    m_stack = new QStackedWidget(this);
    m_stack->addWidget(m_list);
    m_stack->addWidget(m_empty);
}

void QuickList::start(PMListItem::Type kind, const QString &host, const QStringList &pageIds)
{
    m_search->clear();
    m_kept.clear();
    m_items.setKind(kind);
    setPage(host, pageIds);
    onReset();
    m_settling.stop();
}

void QuickList::setPage(const QString &host, const QStringList &ids)
{
    // What the user searched for and has in view is not replaced under the Enter key.
    if (m_items.isSearching())
        m_kept = chosenId();
    const QString seen = chosenId();
    m_delegate->setHost(host);
    m_items.setPageIds(ids);
    // The key that was meant for the item before is not for the one that took its place.
    if (isVisible() && !seen.isEmpty() && chosenId() != seen)
        m_settling.start();
}

void QuickList::setKind(PMListItem::Type kind)
{
    m_kept.clear();
    m_items.setKind(kind);
}

void QuickList::setFilling(bool filling)
{
    m_delegate->setFilling(filling);
    m_list->viewport()->update();
}

void QuickList::setActive(bool active)
{
    m_items.setActive(active);
}

void QuickList::takeFocus()
{
    m_search->setFocus();
}

QString QuickList::chosenId() const
{
    const PMListItem *item = m_items.itemAt(m_list->currentIndex().row());
    return item ? item->id() : QString();
}

bool QuickList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && onKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool QuickList::onKey(const QKeyEvent &key)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier)
        return onCommand(key.key());
    if (modifiers != Qt::NoModifier)
        return false;
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
        return step(key.key());
    const QString id = chosenId();
    if (!id.isEmpty() && !isSettling())
        Q_EMIT activated(id);
    return true;
}

bool QuickList::onCommand(int key)
{
    // What the user has marked in the field is what is meant.
    const bool wantsSecret = key == Qt::Key_C && !m_search->hasSelectedText();
    if (key != Qt::Key_B && !wantsSecret)
        return false;
    if (!isSettling())
        Q_EMIT wantsSecret ? secretWanted(chosenId()) : userNameWanted(chosenId());
    return true;
}

bool QuickList::step(int key)
{
    static const QHash<int, int> steps{{Qt::Key_Down, 1},
                                       {Qt::Key_Up, -1},
                                       {Qt::Key_PageDown, pageSteps},
                                       {Qt::Key_PageUp, -pageSteps}};
    const int by = steps.value(key);
    if (by == 0)
        return false;
    const int row = m_items.itemRow(m_list->currentIndex().row(), by);
    choose(row);
    m_kept = chosenId();
    m_settling.stop(); // the user has seen the rows as they are
    return true;
}

void QuickList::choose(int row)
{
    if (row + pageSteps >= m_items.rowCount())
        m_items.fetchMore({});
    const QModelIndex index = m_items.index(row);
    m_list->setCurrentIndex(index);
    // Above the first item of all nothing is to be missed.
    if (m_items.itemRow(row, -1) == row)
        m_list->scrollToTop();
    else
        m_list->scrollTo(index);
}

void QuickList::onReset()
{
    const int kept = m_kept.isEmpty() ? -1 : m_items.rowOf(m_kept);
    choose(kept >= 0 ? kept : m_items.itemRow(-1, 1));
    showEmptyState();
}

void QuickList::showEmptyState()
{
    const bool empty = m_items.rowCount() == 0;
    m_stack->setCurrentIndex(empty ? 1 : 0);
    if (!empty)
        return;
    if (m_items.isSearching()) {
        m_empty->setContent(QStringLiteral("search"), tr("Nothing found"),
                            tr("Try another word, or fewer letters."));
        return;
    }
    static const QHash<int, const char *> missing{
        {PMListItem::Login, QT_TR_NOOP("No logins yet")},
        {PMListItem::CreditCard, QT_TR_NOOP("No cards yet")},
        {PMListItem::Identity, QT_TR_NOOP("No identities yet")}};
    static const QHash<int, const char *> icons{{PMListItem::Login, "key"},
                                                {PMListItem::CreditCard, "credit-card"},
                                                {PMListItem::Identity, "id"}};
    m_empty->setContent(QLatin1String(icons.value(m_items.kind())),
                        tr(missing.value(m_items.kind())),
                        tr("What you add in the main window is found here."));
}
