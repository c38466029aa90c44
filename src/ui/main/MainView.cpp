#include "MainView.h"

#include "Banner.h"
#include "DayWatch.h"
#include "GPMAppCore.h"
#include "ItemActions.h"
#include "ItemCommands.h"
#include "ItemKinds.h"
#include "ItemListPane.h"
#include "ItemNavigation.h"
#include "ItemPage.h"
#include "ItemPane.h"
#include "NarrowLayout.h"
#include "NoticeBanner.h"
#include "SafeLayout.h"
#include "SafeMenu.h"
#include "SelectionPage.h"
#include "ShortcutTable.h"
#include "ShortcutsDialog.h"
#include "Sidebar.h"
#include "SiteIcons.h"
#include "attachments/AttachmentActions.h"
#include "cloud/CloudTexts.h"
#include "drafts/DraftKeeper.h"
#include "drafts/DraftOffer.h"
#include "health/HealthDesk.h"
#include "movein/MoveDesk.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/SnackBar.h"

#include <QBoxLayout>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>

namespace {

const int listWidth = 320;
const int smallestItemWidth = 490;
const int undoSeconds = 8;
const int cloudRunningMs = 400;

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
    , m_clock(clock)
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
    m_side = new QWidget(m_splitter);
    m_right = new QStackedWidget(m_side);
    m_pane = new ItemPane(core, theme, asker, m_right);
    m_pane->page().setIcons(m_list->icons());
    connect(&core, &GPMAppCore::siteIconChanged, &m_list->icons(), &SiteIcons::onUpdateFavicons);
    m_selection = new SelectionPage(theme, m_right);
    m_right->addWidget(m_pane);
    m_right->addWidget(m_selection);
    m_snack = new SnackBar(theme, this);
    m_goneNotice = new NoticeBanner(QStringLiteral("alert-triangle"), theme, this);
    m_goneNotice->setObjectName(QStringLiteral("goneNotice"));
    m_cloudRunning = new QTimer(this);
    m_health = new HealthDesk(core, m_items, theme, this);
    m_health->serve(m_list->filter());
    m_moveDesk = new MoveDesk(core, theme, this);
    m_keeper = new DraftKeeper(core, *m_pane, this);
    m_offer = new DraftOffer(*m_pane, *m_keeper, theme, asker, this);
    const MainParts parts{m_items, m_actions, m_sidebar, m_list, m_right, m_pane, m_selection};
    m_navigation = new ItemNavigation(parts, this);
    m_commands = new ItemCommands(core, theme, parts, *m_navigation, this);
    m_narrow = new NarrowLayout(parts, *m_navigation, theme, m_side, this);
    layOut();
    connectParts();
    connectCloud();
    addShortcuts();
    connect(new DayWatch(clock, this), &DayWatch::dayChanged, this, &MainView::onDayChanged);
    m_items.setDescriber(
        [this](const PMListItem &item) { return itemDescription(item, m_list->filter().today()); });
    m_navigation->showCategory({});
}

SiteIcons &MainView::siteIcons()
{
    return m_list->icons();
}

void MainView::layOut()
{
    // Smaller texts have the same buttons.
    m_right->setMinimumWidth(qMax(smallestItemWidth, Style::scaled(smallestItemWidth)));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(1);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({listWidth, 2 * listWidth});
    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    for (QWidget *banner : banners())
        right->addWidget(banner);
    right->addWidget(m_splitter, 1);
    auto *all = new QHBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addWidget(m_sidebar);
    all->addLayout(right, 1);
    // The sidebar gives way, which the layout does not know.
    all->setSizeConstraint(QLayout::SetNoConstraint);
}

void MainView::connectParts()
{
    connect(m_sidebar, &Sidebar::lockRequested, this, &MainView::lockRequested);
    connect(m_sidebar, &Sidebar::generatorRequested, this, &MainView::generatorRequested);
    connect(m_sidebar, &Sidebar::healthRequested, m_health, &HealthDesk::open);
    connect(m_sidebar, &Sidebar::settingsRequested, this, &MainView::settingsRequested);
    connect(m_sidebar, &Sidebar::shortcutsRequested, this, &MainView::showShortcuts);
    connect(m_sidebar, &Sidebar::helpRequested, this, &MainView::helpRequested);
    connect(m_sidebar, &Sidebar::setUpRequested, this, &MainView::setUpRequested);
    connect(m_sidebar, &Sidebar::exitRequested, this, &MainView::exitRequested);
    m_sidebar->setSafeMenu(m_safeMenu);
    connect(m_safeMenu, &SafeMenu::safeChosen, this, &MainView::safeChosen);
    connect(&m_core.knownSafes(), &KnownSafes::changed, this, [this] {
        const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
        m_sidebar->setSafe(safe && safe->isUnlocked() ? safe->name() : QString());
    });
    connect(m_safeMenu, &SafeMenu::createRequested, this, &MainView::createSafeRequested);
    connect(m_safeMenu, &SafeMenu::lockRequested, this, &MainView::lockRequested);
    connect(m_safeMenu, &SafeMenu::changePasswordRequested, this,
            &MainView::changePasswordRequested);
    connect(m_safeMenu, &SafeMenu::bringOverRequested, m_moveDesk, &MoveDesk::bringOver);
    connect(m_safeMenu, &SafeMenu::exportItemsRequested, m_moveDesk, &MoveDesk::exportAll);
    connect(m_list, &ItemListPane::bringOverRequested, m_moveDesk, &MoveDesk::bringOver);
    connect(m_commands, &ItemCommands::exportRequested, m_moveDesk, &MoveDesk::exportItems);
    connect(m_health, &HealthDesk::changeRequested, m_commands, &ItemCommands::change);
    connect(m_list, &ItemListPane::orderChosen, this, &MainView::itemOrderChanged);
    connect(m_pane, &ItemPane::generatorRequested, this, &MainView::fieldGeneratorRequested);
    connect(&m_pane->attachments(), &AttachmentActions::told, m_snack,
            [this](const QString &text) { m_snack->show(text); });
    connect(m_offer, &DraftOffer::continued, m_list, &ItemListPane::setCurrent);
    connect(m_actions, &ItemActions::movedToTrash, this, &MainView::onMovedToTrash);
    connect(m_snack, &SnackBar::actionChosen, this, &MainView::undo);
}

void MainView::connectCloud()
{
    const CloudSync &cloud = m_core.cloud();
    m_cloudRunning->setSingleShot(true);
    m_cloudRunning->setInterval(cloudRunningMs);
    connect(m_cloudRunning, &QTimer::timeout, this,
            [this] { m_sidebar->setCloud(m_core.cloud().status(), m_clock()); });
    connect(&cloud, &CloudSync::statusChanged, this, &MainView::showCloud);
    connect(&cloud, &CloudSync::itemsCame, this, &MainView::tellNews);
    connect(m_pane, &ItemPane::editEnded, m_goneNotice, &NoticeBanner::dismiss);
    connect(m_pane, &ItemPane::saved, m_goneNotice, &NoticeBanner::dismiss);
    connect(m_pane, &ItemPane::editedItemGone, this, &MainView::tellGone);
}

void MainView::showCloud()
{
    const CloudStatus status = m_core.cloud().status();
    // Most meetings are over before anybody could read that there is one.
    if (status.state == CloudStatus::State::Running) {
        if (!m_cloudRunning->isActive())
            m_cloudRunning->start();
        return;
    }
    m_cloudRunning->stop();
    m_sidebar->setCloud(status, m_clock());
}

void MainView::tellNews(int received, int removed)
{
    // The way back to what was just moved to the trash is not pushed aside.
    if (!m_snack->offersAction())
        m_snack->show(CloudTexts::news(received, removed));
}

void MainView::tellGone(const QString &title)
{
    m_goneNotice->tell(tr("“%1” was deleted on another computer.").arg(title),
                       tr("What you have typed is kept. Save it as a new item, or discard it."));
}

void MainView::addShortcuts()
{
    // Not a closure in a closure: under its sanitizers GCC 12 hands such a one a wrong "this".
    const auto command = [this](void (ItemCommands::*run)()) -> std::function<void()> {
        return std::bind(run, m_commands);
    };
    const QHash<int, std::function<void()>> commands = {
        {ShortcutRow::Search,
         [this] {
             if (m_narrow->showList())
                 m_list->focusSearch();
         }},
        {ShortcutRow::CreateItem, command(&ItemCommands::createHere)},
        {ShortcutRow::EditItem, command(&ItemCommands::edit)},
        {ShortcutRow::SaveItem, command(&ItemCommands::save)},
        {ShortcutRow::LogIn, command(&ItemCommands::logIn)},
        {ShortcutRow::CopyUserName, command(&ItemCommands::copyUserName)},
        {ShortcutRow::CopySecret, command(&ItemCommands::copySecret)},
        {ShortcutRow::Undo, [this] { undo(); }},
        {ShortcutRow::Paste, command(&ItemCommands::paste)},
        {ShortcutRow::Lock, [this] { Q_EMIT lockRequested(); }},
        {ShortcutRow::Settings, [this] { Q_EMIT settingsRequested(); }},
        {ShortcutRow::ShowShortcuts, [this] { showShortcuts(); }},
    };
    const QVector<ShortcutRow> table = shortcutTable();
    for (const ShortcutRow &row : table) {
        const std::function<void()> run = commands.value(row.command);
        for (const QKeySequence &keys : row.keys) {
            if (run)
                connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
        }
    }
}

void MainView::openSafe(const std::shared_ptr<GPMSafe> &safe)
{
    m_splitter->show();
    // Before the rows go.
    connect(safe.get(), &GPMSafe::itemAboutToBeRemoved, m_pane, &ItemPane::letGo,
            Qt::UniqueConnection);
    m_items.setSafe(safe);
    m_sidebar->setSafe(safe->name());
    showCloud();
    m_list->setIconFolder(SafeFolder(safe->folder()).path(SafeLayout::favicon));
    m_banner->setUnreadableFiles(unreadablePaths(*safe));
    m_navigation->showCategory({});
    m_navigation->onContentChanged();
    m_navigation->showFirst();
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
    m_goneNotice->dismiss();
    m_banner->setUnreadableFiles({});
    m_navigation->onContentChanged();
}

void MainView::takeFocus()
{
    m_list->takeFocus();
}

bool MainView::mayLeave()
{
    return m_pane->mayLeave();
}

QVector<QWidget *> MainView::banners() const
{
    return {m_banner, m_offer->banner(), m_goneNotice, m_pane->attachments().banner()};
}

void MainView::leaveRoom(const QSize &buttons)
{
    m_narrow->setRoom(buttons.height(), banners());
    for (QWidget *banner : banners()) {
        // In the layout: the style sheet has the margins of frames to itself.
        QMargins margins = banner->layout()->contentsMargins();
        margins.setRight(Style::gap + buttons.width());
        banner->layout()->setContentsMargins(margins);
    }
}

QVariantMap MainView::place() const
{
    return m_navigation->place();
}

void MainView::goTo(const QVariantMap &place)
{
    m_navigation->goToPlace(place);
}

void MainView::createItem(PMListItem::Type type)
{
    m_commands->create(type);
}

void MainView::setSetUpDone(bool done)
{
    m_sidebar->setSetUpDone(done);
}

QSize MainView::minimumSizeHint() const
{
    const QSize size = SecureContent::minimumSizeHint();
    const int widest = qMax(m_list->minimumSizeHint().width(), m_side->minimumSizeHint().width());
    return {Sidebar::foldedWidth() + widest, size.height()};
}

int MainView::sideBySideWidth() const
{
    return Sidebar::foldedWidth() + m_list->minimumSizeHint().width() + m_splitter->handleWidth() +
           m_side->minimumSizeHint().width();
}

void MainView::resizeEvent(QResizeEvent *event)
{
    // Its words are the first to go where all of them do not fit.
    const int unfolding = Sidebar::fullWidth() - Sidebar::foldedWidth();
    m_sidebar->setFolded(width() < sideBySideWidth() + unfolding);
    m_narrow->setNarrow(width() < sideBySideWidth());
    SecureContent::resizeEvent(event);
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

void MainView::onDayChanged()
{
    m_list->onDayChanged();
    showCloud();
    m_navigation->onContentChanged();
    m_pane->page().refresh();
    m_health->onDayChanged();
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
