#include "MainView.h"

#include "Banner.h"
#include "DayWatch.h"
#include "GPMAppCore.h"
#include "ItemActions.h"
#include "ItemKinds.h"
#include "ItemListPane.h"
#include "ItemMenu.h"
#include "ItemPage.h"
#include "ItemPane.h"
#include "NoticeBanner.h"
#include "SafeLayout.h"
#include "SafeMenu.h"
#include "SelectionPage.h"
#include "ShortcutTable.h"
#include "ShortcutsDialog.h"
#include "Sidebar.h"
#include "attachments/AttachmentActions.h"
#include "drafts/DraftKeeper.h"
#include "drafts/DraftOffer.h"
#include "health/HealthDesk.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/SnackBar.h"

#include <QBoxLayout>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QUrl>

namespace {

const int listWidth = 320;
const int smallestItemWidth = 490;
const int undoSeconds = 8;

QStringList unreadablePaths(const GPMSafe &safe)
{
    QStringList paths;
    for (const QString &name : safe.unreadableFiles())
        paths.append(QStringList{safe.folder(), QLatin1String(SafeLayout::content), name}.join(
            QLatin1Char('/')));
    return paths;
}

} // namespace

MainView::MainView(GPMAppCore &core, const Theme &theme, Asker asker, QWidget *parent,
                   const Clock &clock)
    : SecureContent(parent)
    , m_core(core)
    , m_theme(theme)
{
    setObjectName(QStringLiteral("mainView"));
    if (!asker)
        asker = dialogAsker(this);
    m_actions = new ItemActions(core, asker, this);
    m_banner = new Banner(theme, this);
    m_sidebar = new Sidebar(theme, this);
    m_safeMenu = new SafeMenu(core, theme, this);
    m_splitter = new QSplitter(this);
    m_list = new ItemListPane(m_items, theme, m_splitter, clock);
    m_right = new QStackedWidget(m_splitter);
    m_pane = new ItemPane(core, theme, asker, m_right);
    m_pane->page().setIcons(m_list->icons());
    m_selection = new SelectionPage(theme, m_right);
    m_right->addWidget(m_pane);
    m_right->addWidget(m_selection);
    m_snack = new SnackBar(theme, this);
    m_health = new HealthDesk(core, m_items, theme, this);
    m_health->serve(m_list->filter());
    m_keeper = new DraftKeeper(core, *m_pane, this);
    m_offer = new DraftOffer(*m_pane, *m_keeper, theme, asker, this);
    layOut();
    connectParts();
    connectItemPane();
    addShortcuts();
    connect(new DayWatch(clock, this), &DayWatch::dayChanged, this, &MainView::onDayChanged);
    m_items.setDescriber(
        [this](const PMListItem &item) { return itemDescription(item, m_list->filter().today()); });
    showCategory({});
}

void MainView::layOut()
{
    m_right->setMinimumWidth(Style::scaled(smallestItemWidth));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(1);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({listWidth, 2 * listWidth});
    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(m_banner);
    right->addWidget(m_offer->banner());
    right->addWidget(m_pane->attachments().banner());
    right->addWidget(m_splitter, 1);
    auto *all = new QHBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addWidget(m_sidebar);
    all->addLayout(right, 1);
}

void MainView::connectParts()
{
    connect(m_sidebar, &Sidebar::categoryChosen, this, &MainView::onCategoryChosen);
    connect(m_sidebar, &Sidebar::lockRequested, this, &MainView::lockRequested);
    connect(m_sidebar, &Sidebar::generatorRequested, this, &MainView::generatorRequested);
    connect(m_sidebar, &Sidebar::healthRequested, m_health, &HealthDesk::open);
    connect(m_health, &HealthDesk::changeRequested, this, &MainView::changeItem);
    connect(m_sidebar, &Sidebar::settingsRequested, this, &MainView::settingsRequested);
    connect(m_sidebar, &Sidebar::shortcutsRequested, this, &MainView::showShortcuts);
    connect(m_sidebar, &Sidebar::helpRequested, this, &MainView::helpRequested);
    connect(m_sidebar, &Sidebar::setUpRequested, this, &MainView::setUpRequested);
    connect(m_sidebar, &Sidebar::exitRequested, this, &MainView::exitRequested);
    m_sidebar->setSafeMenu(m_safeMenu);
    connect(m_safeMenu, &SafeMenu::safeChosen, this, &MainView::safeChosen);
    connect(m_safeMenu, &SafeMenu::createRequested, this, &MainView::createSafeRequested);
    connect(m_safeMenu, &SafeMenu::lockRequested, this, &MainView::lockRequested);
    connect(m_sidebar, &Sidebar::itemsDropped, this,
            [this](const ItemCategory &category, const QStringList &ids) {
                // A question inside the drop would hold the drag up.
                QTimer::singleShot(0, this, [this, category, ids] { onDropped(category, ids); });
            });
    connect(m_sidebar, &Sidebar::restoreAllRequested, m_actions, &ItemActions::restoreAll);
    connect(m_sidebar, &Sidebar::emptyTrashRequested, m_actions, &ItemActions::emptyTrash);
    connect(&m_items, &ItemListModel::contentChanged, this, &MainView::onContentChanged);
    connect(m_list, &ItemListPane::selectionChosen, this, &MainView::onSelectionChosen);
    connect(m_list, &ItemListPane::menuRequested, this, &MainView::showMenu);
    connect(m_list, &ItemListPane::orderChosen, this, &MainView::itemOrderChanged);
    connect(m_list, &ItemListPane::searched, this, &MainView::onSearched);
    connect(m_list, &ItemListPane::activated, m_actions, &ItemActions::runDefault);
    connect(m_list, &ItemListPane::removeRequested, this, &MainView::remove);
    connect(m_list, &ItemListPane::createRequested, this, &MainView::createItem);
    connect(m_list, &ItemListPane::restoreAllRequested, m_actions, &ItemActions::restoreAll);
    connect(m_list, &ItemListPane::emptyTrashRequested, m_actions, &ItemActions::emptyTrash);
    connect(m_selection, &SelectionPage::favoriteRequested, this,
            [this](bool favorite) { m_actions->setFavorite(m_list->selectedIds(), favorite); });
    connect(m_selection, &SelectionPage::removeRequested, this, &MainView::removeSelected);
    connect(m_selection, &SelectionPage::restoreRequested, this,
            [this] { m_actions->restore(m_list->selectedIds()); });
    connect(m_actions, &ItemActions::movedToTrash, this, &MainView::onMovedToTrash);
    connect(m_snack, &SnackBar::actionChosen, this, &MainView::undo);
}

void MainView::connectItemPane()
{
    connect(m_pane, &ItemPane::saved, this, &MainView::onSaved);
    connect(m_pane, &ItemPane::generatorRequested, this, &MainView::fieldGeneratorRequested);
    connect(m_pane, &ItemPane::discarded, this, [this] {
        showCurrent();
        m_list->takeFocus();
    });
    connect(&m_pane->attachments(), &AttachmentActions::told, m_snack,
            [this](const QString &text) { m_snack->show(text); });
    connect(m_offer, &DraftOffer::continued, m_list, &ItemListPane::setCurrent);
    connect(m_pane, &ItemPane::removeRequested, this, &MainView::removeOne);
    connect(m_pane, &ItemPane::restoreRequested, this,
            [this](const QString &id) { m_actions->restore({id}); });
    const ItemPage &page = m_pane->page();
    connect(&page, &ItemPage::defaultActionRequested, this, &MainView::logIn);
    connect(&page, &ItemPage::favoriteToggled, this,
            [this] { m_actions->toggleFavorite(m_pane->shownId()); });
    connect(&page, &ItemPage::copyRequested, m_actions, &ItemActions::copyText);
    connect(&page, &ItemPage::openRequested, &m_core, [this](const QString &address) {
        Q_EMIT m_core.openAddress(QUrl::fromUserInput(address));
    });
}

void MainView::addShortcuts()
{
    using Slot = void (MainView::*)();
    static const QHash<int, Slot> commands = {
        {ShortcutRow::Search, &MainView::focusSearch},
        {ShortcutRow::CreateItem, &MainView::createItemHere},
        {ShortcutRow::EditItem, &MainView::editItem},
        {ShortcutRow::SaveItem, &MainView::saveItem},
        {ShortcutRow::LogIn, &MainView::logIn},
        {ShortcutRow::CopyUserName, &MainView::copyUserName},
        {ShortcutRow::CopySecret, &MainView::copySecret},
        {ShortcutRow::Undo, &MainView::undo},
        {ShortcutRow::Paste, &MainView::paste},
        {ShortcutRow::Lock, &MainView::lockRequested},
        {ShortcutRow::Settings, &MainView::settingsRequested},
        {ShortcutRow::ShowShortcuts, &MainView::showShortcuts},
    };
    const QVector<ShortcutRow> table = shortcutTable();
    for (const ShortcutRow &row : table) {
        const Slot command = commands.value(row.command);
        for (const QKeySequence &keys : row.keys) {
            if (command)
                connect(new QShortcut(keys, this), &QShortcut::activated, this, command);
        }
    }
    auto *leave = new QShortcut(QKeySequence(Qt::Key_Escape), m_pane);
    leave->setContext(Qt::WidgetWithChildrenShortcut);
    connect(leave, &QShortcut::activated, this, &MainView::leaveEditor);
}

void MainView::openSafe(const std::shared_ptr<GPMSafe> &safe)
{
    m_splitter->show();
    m_items.setSafe(safe);
    m_sidebar->setSafe(safe->name());
    m_list->setIconFolder(SafeFolder(safe->folder()).path(SafeLayout::favicon));
    m_banner->setUnreadableFiles(unreadablePaths(*safe));
    showCategory({});
    onContentChanged();
    m_list->setCurrent(m_list->firstId());
    showCurrent();
    m_offer->openSafe(safe);
}

void MainView::closeSafe()
{
    // A question about an item of the safe has lost its sense; a message has not.
    const QList<QDialog *> dialogs = window()->findChildren<QDialog *>();
    for (QDialog *dialog : dialogs) {
        if (dialog->isModal())
            dialog->reject();
    }
    m_splitter->hide();
    m_offer->closeSafe();
    m_pane->showNothing();
    m_items.setSafe(nullptr);
    m_list->clearSearch();
    m_sidebar->setSafe({});
    m_list->setIconFolder({});
    m_actions->forget();
    m_health->close();
    m_snack->dismiss();
    m_banner->setUnreadableFiles({});
    onContentChanged();
}

void MainView::takeFocus()
{
    m_list->takeFocus();
}

bool MainView::mayLeave()
{
    return m_pane->mayLeave();
}

void MainView::leaveRoom(const QSize &buttons)
{
    // The item's own margin adds to it.
    const int above = 10;
    m_pane->setContentsMargins(0, qMax(0, buttons.height() - above), 0, 0);
    for (QWidget *banner :
         {static_cast<QWidget *>(m_banner), static_cast<QWidget *>(m_offer->banner()),
          static_cast<QWidget *>(m_pane->attachments().banner())}) {
        // In the layout: the style sheet has the margins of frames to itself.
        QMargins margins = banner->layout()->contentsMargins();
        margins.setRight(Style::gap + buttons.width());
        banner->layout()->setContentsMargins(margins);
    }
}

QVariantMap MainView::place() const
{
    const ItemCategory &category = m_list->category();
    return {{QStringLiteral("category"), ItemCategory::all().indexOf(category)},
            {QStringLiteral("item"), m_pane->shownId()}};
}

void MainView::goTo(const QVariantMap &place)
{
    const int row = place.value(QStringLiteral("category"), 0).toInt();
    showCategory(ItemCategory::all().value(row));
    m_list->setCurrent(place.value(QStringLiteral("item")).toString());
    showCurrent();
}

void MainView::setSetUpDone(bool done)
{
    m_sidebar->setSetUpDone(done);
}

QByteArray MainView::splitterState() const
{
    return m_splitter->saveState();
}

void MainView::restoreSplitter(const QByteArray &state)
{
    m_splitter->restoreState(state);
}

QString MainView::itemOrder() const
{
    return m_list->order();
}

void MainView::setItemOrder(const QString &name)
{
    m_list->setOrder(name);
}

void MainView::showCategory(const ItemCategory &category)
{
    m_sidebar->setCategory(category);
    m_list->setCategory(category);
    m_list->setCount(m_sidebar->count(category), m_items.rowCount() == 0);
}

void MainView::onCategoryChosen(const ItemCategory &category)
{
    if (!m_pane->mayLeave()) {
        m_sidebar->setCategory(m_list->category());
        return;
    }
    showCategory(category);
    if (m_list->selectedIds().isEmpty())
        m_list->setCurrent(m_list->firstId());
    showCurrent();
}

void MainView::onSelectionChosen()
{
    if (m_pane->isEditing()) {
        const QStringList ids = m_list->selectedIds();
        // A click beside the rows is no wish to leave.
        if (ids.isEmpty() || ids == QStringList{m_pane->editedId()})
            return;
        if (!m_pane->mayLeave()) {
            m_list->setCurrent(m_pane->editedId());
            return;
        }
        // Saving has selected what was saved.
        if (ids.size() == 1)
            m_list->setCurrent(ids.first());
    }
    showCurrent();
}

void MainView::onSearched()
{
    // What is being edited stays; its row may well be hidden.
    if (m_pane->isEditing())
        return;
    if (m_list->selectedIds().isEmpty())
        m_list->setCurrent(m_list->firstId());
    showCurrent();
}

void MainView::onContentChanged()
{
    m_sidebar->setCounts(categoryCounts(m_items, m_list->filter().today()));
    m_list->setCount(m_sidebar->count(m_list->category()), m_items.rowCount() == 0);
    if (m_pane->isEditing())
        return;
    if (m_right->currentWidget() == m_selection || m_pane->shownId() != m_list->currentId())
        showCurrent();
}

void MainView::onDayChanged()
{
    m_list->onDayChanged();
    onContentChanged();
    m_pane->page().refresh();
    m_health->onDayChanged();
}

void MainView::showCurrent()
{
    const QVector<PMListItem *> items = m_actions->items(m_list->selectedIds());
    m_pane->showItem(items.size() == 1 ? items.first() : nullptr);
    if (items.size() > 1)
        m_selection->setItems(items);
    m_right->setCurrentWidget(items.size() > 1 ? static_cast<QWidget *>(m_selection) : m_pane);
}

void MainView::onSaved(const QString &id)
{
    goTo(id);
    m_list->focusList();
}

void MainView::goTo(const QString &id)
{
    if (!m_list->contains(id)) {
        m_list->clearSearch();
        if (!m_list->contains(id))
            showCategory({});
    }
    m_list->setCurrent(id);
}

void MainView::changeItem(const QString &id)
{
    window()->activateWindow();
    if (m_pane->isEditing() && m_pane->editedId() == id)
        return;
    if (!m_pane->mayLeave())
        return;
    goTo(id);
    showCurrent();
    editItem();
}

void MainView::removeOne(const QString &id)
{
    remove({id});
}

void MainView::removeSelected()
{
    remove(m_list->selectedIds());
}

void MainView::remove(const QStringList &ids)
{
    const bool editing = m_pane->isEditing() && ids.contains(m_pane->editedId());
    if (m_pane->isEditing() && !editing) {
        // Another item is in the editor: that one is decided about first.
        if (!m_pane->mayLeave())
            return;
        if (ids.size() == 1)
            m_list->setCurrent(ids.first());
        showCurrent();
    }
    if (!m_actions->remove(ids))
        return;
    if (editing)
        m_pane->drop();
    showCurrent();
}

void MainView::onMovedToTrash(int count)
{
    m_snack->show(count == 1 ? tr("Moved to trash") : tr("%n items moved to trash", nullptr, count),
                  tr("Undo"), undoSeconds);
}

void MainView::undo()
{
    if (m_pane->isEditing() || !m_actions->undoRemoval())
        return;
    m_snack->dismiss();
}

void MainView::onDropped(const ItemCategory &category, const QStringList &ids)
{
    if (category.kind == ItemCategory::Trash)
        remove(ids);
    else
        m_actions->setFavorite(ids, true);
}

void MainView::showMenu(const QPoint &place)
{
    // What is being edited is not to change below the editor.
    if (m_pane->isEditing())
        return;
    auto *menu = new ItemMenu(*m_actions, m_list->selectedIds(), m_theme, this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu, &ItemMenu::editRequested, this, &MainView::editItem);
    connect(menu, &ItemMenu::duplicateRequested, this, &MainView::duplicate);
    connect(menu, &ItemMenu::removeRequested, this, &MainView::removeSelected);
    menu->popup(place);
}

void MainView::duplicate()
{
    const QString id = m_actions->duplicate(m_list->currentId());
    if (id.isEmpty())
        return;
    onSaved(id);
    showCurrent();
    editItem();
}

void MainView::createItem(PMListItem::Type type)
{
    if (!m_pane->mayLeave())
        return;
    m_right->setCurrentWidget(m_pane);
    m_pane->startNew(type);
}

void MainView::createItemHere()
{
    const ItemCategory &category = m_list->category();
    createItem(category.kind == ItemCategory::OfType ? category.type : PMListItem::Login);
}

void MainView::editItem()
{
    m_pane->startEdit();
}

void MainView::saveItem()
{
    if (m_pane->isEditing())
        m_pane->save();
    else if (m_core.hasUnsavedChanges())
        m_core.currentSafe()->saveChangesAsync();
}

void MainView::paste()
{
    m_pane->paste();
}

void MainView::leaveEditor()
{
    if (m_pane->isEditing() && m_pane->mayLeave()) {
        showCurrent();
        m_list->takeFocus();
    }
}

void MainView::logIn()
{
    if (!m_pane->isEditing())
        m_actions->runDefault(m_pane->shownId());
}

void MainView::copyUserName()
{
    if (!m_pane->isEditing())
        m_actions->copyUserName(m_pane->shownId());
}

void MainView::copySecret()
{
    if (!m_pane->isEditing())
        m_actions->copySecret(m_pane->shownId());
}

void MainView::showShortcuts()
{
    auto *dialog = window()->findChild<ShortcutsDialog *>();
    if (!dialog) {
        dialog = new ShortcutsDialog(m_theme, window());
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void MainView::focusSearch()
{
    m_list->focusSearch();
}
