#include "QuickAccessWindow.h"

#include "GPMAppCore.h"
#include "QuickBar.h"
#include "QuickList.h"
#include "QuickLockPage.h"
#include "QuickPlace.h"
#include "SiteAddress.h"
#include "WindowActivation.h"
#include "lock/UnlockLogic.h"
#include "main/EmptyState.h"
#include "style/Style.h"
#include "style/SvgIcon.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/WindowFrame.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace {

const QSize usualSize(360, 470);

PMListItem::Type kindOf(QuickAccessWish::Section section)
{
    return QuickItems::kinds().value(static_cast<int>(section), PMListItem::Login);
}

/// For the eye: the address has been parsed for all that matters.
QString hostOf(const QString &url)
{
    const auto address = SiteAddress::parse(url);
    const QString host = address ? address->host() : QString();
    return host.startsWith(QLatin1String("www.")) ? host.mid(4) : host;
}

/// Whether a dialog keeps the keyboard and the mouse from all windows.
bool isBlocked()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->isVisible() && window->windowModality() == Qt::ApplicationModal;
    });
}

} // namespace

QuickAccessWindow::QuickAccessWindow(const Parts &parts, const Theme &theme)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_parts(parts)
    , m_actions(parts.core)
    , m_frame(new WindowFrame(*this, WindowFrame::Fixed))
    , m_list(new QuickList({parts.items, parts.icons, parts.core.clipboard()}, theme, this))
    , m_lock(new QuickLockPage(parts.unlock, parts.core.platform(), theme, this))
    , m_noSafe(new EmptyState(theme, this))
    , m_generator(new GeneratorPanel(parts.generator, GeneratorPanel::Small, theme, this))
    , m_generatorPage(new QWidget(this))
    , m_pages(new QStackedWidget(this))
    , m_bar(new QuickBar(theme, this))
{
    setObjectName(QStringLiteral("quickAccess"));
    setWindowTitle(tr("Quick access"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_QuitOnClose, false);
    layOut(theme);
    connectParts();
    addShortcuts();
    m_frame->raise();
    // Its native window and its styles take longer than all that is done when it opens.
    ensurePolished();
    winId();
    resize(QSize(Style::scaled(usualSize.width()), Style::scaled(usualSize.height())) +
           m_frame->addition());
    layout()->activate();
}

QuickAccessWindow::~QuickAccessWindow() = default;

void QuickAccessWindow::layOut(const Theme &)
{
    m_noSafe->setObjectName(QStringLiteral("quickNoSafe"));
    m_noSafe->setContent(QStringLiteral("shield-lock"), tr("No safe yet"),
                         tr("Create one in the main window; what it keeps is found here."),
                         tr("Open main window"));
    auto *column = new QVBoxLayout(m_generatorPage);
    column->setContentsMargins(Style::margin, Style::margin, Style::margin, Style::margin);
    column->setSpacing(Style::gap);
    column->addWidget(makeLabel(tr("Password Generator"), "heading", m_generatorPage));
    column->addWidget(m_generator, 1);
    for (QWidget *page : {static_cast<QWidget *>(m_list), static_cast<QWidget *>(m_lock),
                          static_cast<QWidget *>(m_noSafe), m_generatorPage})
        m_pages->addWidget(page);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addWidget(m_pages, 1);
    all->addWidget(m_bar);
    // It is as large as the screen lets it.
    all->setSizeConstraint(QLayout::SetNoConstraint);
}

void QuickAccessWindow::connectParts()
{
    connect(m_list, &QuickList::activated, this, &QuickAccessWindow::fill);
    connect(m_list, &QuickList::secretWanted, this,
            [this](const QString &id) { m_actions.copySecret(id); });
    connect(m_list, &QuickList::userNameWanted, this,
            [this](const QString &id) { m_actions.copyUserName(id); });
    connect(m_bar, &QuickBar::chosen, this, &QuickAccessWindow::setSection);
    connect(m_noSafe, &EmptyState::pressed, this, &QuickAccessWindow::mainWindowRequested);
    connect(m_noSafe, &EmptyState::pressed, this, &QWidget::hide);
    connect(m_lock, &QuickLockPage::mainWindowRequested, this,
            &QuickAccessWindow::mainWindowRequested);
    connect(m_lock, &QuickLockPage::mainWindowRequested, this, &QWidget::hide);
    GPMAppCore &core = m_parts.core;
    m_generator->setTarget({[&core](const QString &password) { core.placePasswordValue(password); },
                            [&core] {
                                return core.hasExtension()
                                           ? QString()
                                           : tr("No browser with the extension is connected");
                            }});
    connect(m_generator, &GeneratorPanel::placed, this, &QWidget::hide);
    connect(&core, &GPMAppCore::requestLock, this, [this] {
        // The other pages give way to the master password.
        if (m_wish.section == Section::Generator)
            hide();
    });
    connect(&core, &GPMAppCore::safeLockedChanged, this, &QuickAccessWindow::followSafe);
    connect(&core, &GPMAppCore::currentSafeChanged, this, &QuickAccessWindow::followSafe);
    connect(&m_parts.unlock, &UnlockLogic::safesChanged, this, &QuickAccessWindow::followSafe);
}

void QuickAccessWindow::addShortcuts()
{
    for (int i = 0; i < QuickBar::count; ++i) {
        auto *shortcut = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_1 + i), this);
        connect(shortcut, &QShortcut::activated, this,
                [this, i] { setSection(static_cast<Section>(i)); });
    }
}

void QuickAccessWindow::open(const QuickAccessWish &wish)
{
    if (m_actions.fillOnly(wish))
        return;
    if (isBlocked()) {
        Q_EMIT mainWindowRequested();
        return;
    }
    m_wish = wish;
    m_list->setFilling(m_parts.core.hasExtension());
    m_list->start(kindOf(wish.section), hostOf(wish.url), m_actions.pageIds(wish));
    m_generator->updatePlace();
    setSection(wish.section);
    place();
    show();
    takeFocus();
    putInFront(*windowHandle(), objectName());
    raise();
    activateWindow();
}

void QuickAccessWindow::takePage(const QString &url)
{
    if (isHidden() || !m_wish.url.isEmpty())
        return;
    m_wish.url = url;
    m_list->setPage(hostOf(url), m_actions.pageIds(m_wish));
}

void QuickAccessWindow::place()
{
    QVector<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    const QScreen *below = QGuiApplication::screenAt(QCursor::pos());
    const int pointer = qMax(0, QGuiApplication::screens().indexOf(const_cast<QScreen *>(below)));
    const QSize size(Style::scaled(usualSize.width()), Style::scaled(usualSize.height()));
    const QRect seen = quickAccessPlace(size, m_wish, screens, pointer);
    // The shadow may hang over the edge.
    const QMargins shadow = contentsMargins();
    setGeometry(seen.marginsAdded(shadow));
}

void QuickAccessWindow::setSection(Section section)
{
    m_wish.section = section;
    m_bar->setSection(section);
    if (section != Section::Generator)
        m_list->setKind(kindOf(section));
    showPage();
}

void QuickAccessWindow::showPage()
{
    QWidget *page = m_list;
    if (m_wish.section == Section::Generator)
        page = m_generatorPage;
    else if (m_parts.unlock.state() == UnlockLogic::State::NoSafes)
        page = m_noSafe;
    else if (m_actions.isLocked())
        page = m_lock;
    m_list->setActive(page == m_list);
    if (page != m_generatorPage)
        m_generator->finish();
    else if (m_pages->currentWidget() != page || isHidden())
        m_generator->start();
    m_pages->setCurrentWidget(page);
    takeFocus();
}

void QuickAccessWindow::takeFocus()
{
    const QWidget *page = m_pages->currentWidget();
    if (page == m_lock)
        m_lock->takeFocus();
    else if (page == m_noSafe)
        m_noSafe->button()->setFocus();
    else if (page == m_list)
        m_list->takeFocus();
    else
        m_generator->takeFocus();
}

void QuickAccessWindow::followSafe()
{
    if (isHidden())
        return;
    const bool waited = m_pages->currentWidget() == m_lock;
    if (waited && !m_actions.isLocked()) {
        if (m_actions.fillOnly(m_wish)) {
            hide();
            return;
        }
        m_list->start(kindOf(m_wish.section), hostOf(m_wish.url), m_actions.pageIds(m_wish));
    }
    showPage();
}

void QuickAccessWindow::fill(const QString &id)
{
    // First of all: the keyboard goes back to the page that is filled.
    const QuickAccessWish wish = m_wish;
    hide();
    m_actions.fill(id, wish);
}

void QuickAccessWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        hide();
    else
        QWidget::keyPressEvent(event);
}

void QuickAccessWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange)
        return;
    // Another window may have moved the keyboard away while this one was hidden.
    if (!isActiveWindow())
        QTimer::singleShot(0, this, &QuickAccessWindow::leaveUnlessBusy);
    else if (!m_pages->currentWidget()->isAncestorOf(focusWidget()))
        takeFocus();
}

void QuickAccessWindow::leaveUnlessBusy()
{
    // A list that hangs from it has taken the keyboard, not another window.
    if (isVisible() && !isActiveWindow() && !QApplication::activePopupWidget())
        hide();
}

void QuickAccessWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_lock->clearSecrets();
    m_generator->finish();
    m_list->setActive(false);
    m_wish = {};
}
