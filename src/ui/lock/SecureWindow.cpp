#include "SecureWindow.h"

#include "GPMAppCore.h"
#include "PagesStack.h"
#include "SecureContent.h"
#include "Shutters.h"
#include "UnlockLogic.h"
#include "style/Style.h"
#include "style/SvgIcon.h"
#include "style/Theme.h"
#include "widgets/TitleBar.h"
#include "widgets/WindowFrame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>

#include <utility>

namespace {

const QSize usualSize(1080, 680);
const QSize smallestSize(552, 528);
const qreal pagesGone = 0.25; ///< how far open nothing is left of the lock pages

} // namespace

SecureWindow::SecureWindow(GPMAppCore &core, const Theme &theme, SecureContent *content,
                           Asker asker)
    : m_core(core)
    , m_theme(theme)
    , m_asker(asker ? std::move(asker) : dialogAsker(this))
    , m_content(content)
    , m_shutters(new Shutters(theme, this))
    , m_pages(new PagesStack(core, theme, this))
    , m_fade(new QGraphicsOpacityEffect(this))
    , m_frame(new WindowFrame(*this, WindowFrame::Resizable))
    , m_titleBar(new TitleBar(theme, TitleBar::All, this))
{
    setObjectName(QStringLiteral("SecureWindow"));
    setWindowIcon(programIcon());
    fitScreen();
    showTitle();
    m_pages->setGraphicsEffect(m_fade);
    m_content->setParent(this);
    m_content->lower();
    m_pages->raise();
    m_titleBar->setVisible(m_frame->isOurs());
    connect(m_frame, &WindowFrame::changed, this, &SecureWindow::layOut);
    if (m_frame->isOurs())
        m_content->leaveRoom(m_titleBar->sizeHint());
    layOut();
    setOpenProgress(0);
    configureStateMachine();
    connect(new QShortcut(QKeySequence(QStringLiteral("Ctrl+Q")), this), &QShortcut::activated,
            this, &SecureWindow::exitRequested);
    // The content has the same key, for while the safe is open.
    auto *settings = new QShortcut(QKeySequence(QStringLiteral("Ctrl+,")), m_pages);
    settings->setContext(Qt::WidgetWithChildrenShortcut);
    connect(settings, &QShortcut::activated, this, &SecureWindow::settingsRequested);
    connect(m_pages, &PagesStack::dismissed, this, &QWidget::close);
    connect(m_pages, &PagesStack::importRequested, this, &SecureWindow::importRequested);
    connect(m_pages, &PagesStack::safesRequested, this, &SecureWindow::safesRequested);
    connect(&core.knownSafes(), &KnownSafes::changed, this, &SecureWindow::showTitle);
    connect(m_pages, &PagesStack::restoreRequested, this, &SecureWindow::restoreRequested);
    connect(m_pages, &PagesStack::cloudImportRequested, this, &SecureWindow::cloudImportRequested);
    connect(&core, &GPMAppCore::currentSafeChanged, this, &SecureWindow::followSafe);
    // Another one was chosen while a lock saved: what was to follow it was before that.
    connect(&core, &GPMAppCore::currentSafeChanged, this, [this] { m_then = nullptr; });
    connect(&core, &GPMAppCore::lockSettled, this, &SecureWindow::onLockSettled);
    connect(&core, &GPMAppCore::lockFailed, this, &SecureWindow::onLockFailed);
    connect(&core, &GPMAppCore::safeLockedChanged, this, &SecureWindow::followSafe);
    followSafe();
}

void SecureWindow::fitScreen()
{
    // Large texts want a large window, but one that is not larger than the screen.
    const auto fitting = [this](const QSize &size) {
        const QSize grown(Style::scaled(size.width()), Style::scaled(size.height()));
        return grown.boundedTo(screen()->availableSize()).expandedTo(smallestSize);
    };
    // Rather larger than a small screen than cut off within.
    const QSize smallest = fitting(smallestSize).expandedTo(m_content->minimumSizeHint());
    setMinimumSize(smallest + m_frame->addition());
    resize(fitting(usualSize) + m_frame->addition());
}

void SecureWindow::configureStateMachine()
{
    QElapsedTimer timer;
    timer.start();
    auto *closed = new QState(&m_machine);
    auto *opened = new QState(&m_machine);
    closed->setObjectName(QStringLiteral("Closed state"));
    opened->setObjectName(QStringLiteral("Opened state"));
    closed->assignProperty(this, "openProgress", 0.0);
    opened->assignProperty(this, "openProgress", 1.0);
    closed->addTransition(this, &SecureWindow::_requestOpenShuttersPrivate, opened);
    opened->addTransition(this, &SecureWindow::_requestCloseShuttersPrivate, closed);
    m_slide = new QPropertyAnimation(this, "openProgress", this);
    m_slide->setEasingCurve(QEasingCurve::OutCubic);
    m_machine.addDefaultAnimation(m_slide);
    m_machine.setInitialState(safeIsOpen() ? opened : closed);
    // A safe may have been opened or locked before the machine ran.
    connect(&m_machine, &QStateMachine::started, this, &SecureWindow::moveShutters);
    connect(m_pages, &PagesStack::keyTurned, this, &SecureWindow::moveShutters);
    m_machine.start();
    qDebug().noquote() << QStringLiteral("UI: %1: State machine is configured in %2 milliseconds")
                              .arg(QLatin1String(metaObject()->className()))
                              .arg(timer.elapsed());
}

void SecureWindow::moveShutters()
{
    m_slide->setDuration(m_theme.motion(Style::shutterMs));
    if (m_open)
        Q_EMIT _requestOpenShuttersPrivate({});
    else
        Q_EMIT _requestCloseShuttersPrivate({});
}

void SecureWindow::setOpenProgress(qreal progress)
{
    m_openProgress = progress;
    m_shutters->setProgress(progress);
    showLayers();
}

void SecureWindow::showLayers()
{
    // The keyboard goes where it belongs at once, not when the shutters have arrived.
    m_content->setVisible(m_open || m_openProgress > 0);
    // They fade while the shutters open, but are out of reach.
    m_pages->setVisible(!m_open || m_openProgress < pagesGone);
    m_pages->setAttribute(Qt::WA_TransparentForMouseEvents, m_open);
    m_titleBar->setOnDark(!m_open || m_openProgress < 0.5);
    m_fade->setEnabled(m_openProgress > 0);
    // They come up when the gap is nearly closed; the keyboard reaches them before.
    m_fade->setOpacity(qMax(0.0, 1 - m_openProgress / pagesGone));
}

void SecureWindow::showTitle()
{
    const QString program = QStringLiteral("Glaceron Password Manager");
    setWindowTitle(m_open ? tr("%1 - %2").arg(m_core.currentSafe()->name(), program) : program);
}

bool SecureWindow::safeIsOpen() const
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    return safe && safe->isUnlocked();
}

void SecureWindow::followSafe()
{
    const bool open = safeIsOpen();
    if (open == m_open)
        return;
    m_open = open;
    showTitle();
    m_content->setEnabled(open);
    m_pages->clearSecrets();
    if (open) {
        m_content->openSafe(m_core.currentSafe());
        showLayers();
        m_content->takeFocus();
        m_pages->turnKey();
    } else {
        m_content->closeSafe();
        showLayers();
        m_pages->showUnlockPage();
        moveShutters();
        // A computer that goes to sleep now shows first what was drawn last.
        repaint();
    }
}

void SecureWindow::lockByUser()
{
    leaveSafe([] {});
}

bool SecureWindow::leaveByUser()
{
    lockByUser();
    return !m_open;
}

void SecureWindow::switchSafe(const QString &folder)
{
    leaveSafe([this, folder] {
        m_pages->unlockLogic().choose(folder);
        m_pages->showUnlockPage();
    });
}

void SecureWindow::createSafe()
{
    leaveSafe([this] { m_pages->showCreatePage(); });
}

void SecureWindow::exitByUser()
{
    // Who says it again does not want to wait for a drive that does not answer.
    if (!m_asking && m_then && !m_open)
        m_core.exitPasswordManager();
    else
        leaveSafe([this] { m_core.exitPasswordManager(); });
}

void SecureWindow::leaveSafe(const std::function<void()> &then)
{
    // The tray can ask once more while a question is open.
    if (m_leaving || m_asking)
        return;
    const QScopedValueRollback<bool> leaving(m_leaving, true);
    if (m_open && !m_content->mayLeave())
        return;
    m_then = then;
    if (m_open)
        m_core.lockForUser();
    onLockSettled();
}

void SecureWindow::onLockSettled()
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    if (!m_asking && m_then && !(safe && (safe->isUnlocked() || safe->isSettling())))
        std::exchange(m_then, nullptr)();
}

void SecureWindow::onLockFailed()
{
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    m_asking = true;
    const int answer =
        m_asker({tr("Can't save changes."),
                 tr("Some changes could not be written; what was there before still is. Check "
                    "that the folder of the safe can be written to and that there is free "
                    "space, then try again:\n%1")
                     .arg(QDir::toNativeSeparators(safe->folder())),
                 {tr("Try again"), tr("Lose changes"), tr("Cancel")},
                 2});
    m_asking = false;
    // Something else may have locked it for good meanwhile, for which these say nothing.
    if (answer == 0 && safe->isSettling())
        safe->lockAsync(GPMSafe::Unsaved::Ask);
    if (answer == 1)
        m_core.giveUpChanges();
    if (answer == 2) {
        m_then = nullptr;
        safe->reopen();
    }
    onLockSettled();
}

void SecureWindow::resizeEvent(QResizeEvent *)
{
    layOut();
}

void SecureWindow::layOut()
{
    const QRect seen = contentsRect();
    const QSize buttons = m_titleBar->sizeHint();
    m_titleBar->setGeometry(seen.right() + 1 - buttons.width(), seen.top(), buttons.width(),
                            buttons.height());
    m_titleBar->raise();
    m_frame->raise();
    for (QWidget *layer : {static_cast<QWidget *>(m_content), static_cast<QWidget *>(m_shutters),
                           static_cast<QWidget *>(m_pages)})
        layer->setGeometry(seen);
}

void SecureWindow::closeEvent(QCloseEvent *event)
{
    const CloseWay way = closeWay(qApp->isSavingSession(), m_hasTray());
    // To refuse would stop the user from logging out.
    event->setAccepted(way == CloseWay::Close);
    if (way == CloseWay::Hide)
        hide();
    if (way == CloseWay::Minimise) {
        setWindowState(windowState() | Qt::WindowMinimized);
        Q_EMIT hidden();
    }
}

SecureWindow::CloseWay SecureWindow::closeWay(bool sessionEnds, bool hasTray)
{
    if (sessionEnds)
        return CloseWay::Close;
    return hasTray ? CloseWay::Hide : CloseWay::Minimise;
}

void SecureWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    Q_EMIT hidden();
}
