#include "MasterPasswordPage.h"

#include "Crystal.h"
#include "Platform.h"
#include "UnlockLogic.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/CapsIndicator.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"
#include "widgets/PasswordField.h"
#include "widgets/SelectBox.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QProgressBar>

namespace {

const int columnWidth = 316;
const int crystalSize = 76;

} // namespace

MasterPasswordPage::MasterPasswordPage(UnlockLogic &logic, Platform &platform, const Theme &theme,
                                       QWidget *parent, Extent extent)
    : QWidget(parent)
    , m_logic(logic)
    , m_platform(platform)
{
    setObjectName(QStringLiteral("masterPasswordPage"));
    makeFields(theme);
    layOut(extent);
    connectFields();
    fillSelector();
    showState();
}

void MasterPasswordPage::makeFields(const Theme &theme)
{
    m_crystal = new Crystal(crystalSize, this);
    m_title = makeLabel({}, "title", this);
    m_title->setAlignment(Qt::AlignHCenter);
    m_subtitle = makeLabel({}, "muted", this);
    m_subtitle->setObjectName(QStringLiteral("unlockSubtitle"));
    m_subtitle->setAlignment(Qt::AlignHCenter);

    m_selector = new SelectBox(theme.lockIcon(QStringLiteral("selector"), Palette::Text), this);
    m_selector->setObjectName(QStringLiteral("safeSelector"));
    m_selector->setAccessibleName(tr("Safe"));
    m_selector->setPlaceholderText(tr("Click to select safe"));
    m_selector->setFrontIcon(theme.lockIcon(QStringLiteral("shield-lock"), Palette::Text));

    m_password =
        new PasswordField(theme.lockIcon(QStringLiteral("eye"), Palette::SidebarText),
                          theme.lockIcon(QStringLiteral("eye-off"), Palette::SidebarText), this);
    m_password->setObjectName(QStringLiteral("masterPassword"));
    m_password->setPlaceholderText(tr("Enter Password"));
    m_password->setAccessibleName(tr("Password"));
    m_password->addAction(theme.lockIcon(QStringLiteral("lock"), Palette::SidebarText),
                          QLineEdit::LeadingPosition);

    m_hint = makeLabel({}, "small", this);
    m_hint->setObjectName(QStringLiteral("safeHint"));
    m_hint->setWordWrap(true);
    m_caps = new CapsIndicator(this);
    m_caps->setObjectName(QStringLiteral("capsIndicator"));

    m_message = new MessageLabel(this);
    m_message->setObjectName(QStringLiteral("unlockMessage"));
    m_progress = new QProgressBar(this);
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("Reading items"));

    m_unlock = makeButton({}, "primary", this);
    m_unlock->setObjectName(QStringLiteral("unlockButton"));
    m_notNow = makeButton(tr("Not now"), "link", this);
    m_notNow->setObjectName(QStringLiteral("notNowButton"));
    m_create = makeButton(tr("Create new..."), "link", this);
    m_create->setObjectName(QStringLiteral("createNewButton"));
    m_restore = makeButton(tr("Restore from a backup…"), "link", this);
    m_restore->setObjectName(QStringLiteral("restoreLink"));
    m_restore->setIcon(theme.lockIcon(QStringLiteral("archive"), Palette::SidebarText));
    m_create->setIcon(theme.lockIcon(QStringLiteral("plus"), Palette::SidebarText));
    m_safes = makeButton(tr("Safes…"), "link", this);
    m_safes->setObjectName(QStringLiteral("safesButton"));
    m_safes->setIcon(theme.lockIcon(QStringLiteral("squares"), Palette::SidebarText));
    m_import = makeButton(tr("Import…"), "link", this);
    m_import->setObjectName(QStringLiteral("importSafeButton"));
    m_import->setIcon(theme.lockIcon(QStringLiteral("file-import"), Palette::SidebarText));
}

void MasterPasswordPage::layOut(Extent extent)
{
    auto *hintLine = new QHBoxLayout;
    hintLine->addWidget(m_hint, 1);
    hintLine->addWidget(m_caps, 0, Qt::AlignTop);

    auto *column = new QVBoxLayout;
    column->addWidget(m_crystal, 0, Qt::AlignHCenter);
    column->addSpacing(Style::margin);
    column->addWidget(m_title);
    column->addSpacing(Style::spacing);
    column->addWidget(m_subtitle);
    column->addSpacing(extent == Whole ? 24 : Style::margin);
    column->addWidget(m_selector);
    column->addSpacing(10);
    column->addWidget(m_password);
    column->addSpacing(Style::spacing);
    column->addLayout(hintLine);
    column->addSpacing(Style::spacing);
    column->addWidget(m_message);
    column->addWidget(m_progress);
    column->addSpacing(Style::gap);
    column->addWidget(m_unlock);
    column->addSpacing(Style::spacing);
    column->addWidget(m_notNow, 0, Qt::AlignHCenter);
    column->setSpacing(0);

    auto *frame = new QWidget(this);
    if (extent == Whole)
        frame->setFixedWidth(Style::scaled(columnWidth));
    else
        frame->setMaximumWidth(Style::scaled(columnWidth));
    column->setContentsMargins({});
    frame->setLayout(column);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(Style::margin, Style::margin, Style::margin, Style::margin);
    all->addStretch(3);
    // As wide as it may be, in a small window as well.
    QHBoxLayout *middle = centred(frame);
    middle->setStretchFactor(frame, extent == Whole ? 0 : 1000);
    all->addLayout(middle);
    all->addStretch(4);
    if (extent == Small) {
        hideWays();
        return;
    }
    auto *links = new QHBoxLayout;
    links->setSpacing(Style::spacing);
    links->addWidget(m_safes);
    links->addWidget(m_import);
    links->addStretch();
    links->addWidget(m_restore);
    links->addWidget(m_create);
    all->addLayout(links);
    setTabOrder(m_notNow, m_safes);
    setTabOrder(m_safes, m_import);
    setTabOrder(m_import, m_restore);
    setTabOrder(m_restore, m_create);
}

void MasterPasswordPage::hideWays()
{
    for (QWidget *way : {m_notNow, m_create, m_safes, m_import, m_restore})
        way->hide();
}

void MasterPasswordPage::connectFields()
{
    connect(&m_logic, &UnlockLogic::safesChanged, this, &MasterPasswordPage::fillSelector);
    connect(&m_logic, &UnlockLogic::changed, this, &MasterPasswordPage::showState);
    connect(&m_logic, &UnlockLogic::refused, this, [this] {
        m_password->clearSecret();
        takeFocus();
    });
    connect(m_selector, QOverload<int>::of(&QComboBox::activated), this,
            &MasterPasswordPage::onSelected);
    connect(m_password, &QLineEdit::returnPressed, this, &MasterPasswordPage::unlock);
    connect(m_unlock, &QPushButton::clicked, this, &MasterPasswordPage::unlock);
    connect(m_notNow, &QPushButton::clicked, this, &MasterPasswordPage::dismissed);
    connect(m_create, &QPushButton::clicked, this, &MasterPasswordPage::createRequested);
    connect(m_safes, &QPushButton::clicked, this, &MasterPasswordPage::safesRequested);
    connect(m_import, &QPushButton::clicked, this, &MasterPasswordPage::importRequested);
    connect(m_restore, &QPushButton::clicked, this, &MasterPasswordPage::restoreRequested);
    m_password->installEventFilter(this);
}

void MasterPasswordPage::fillSelector()
{
    m_selector->clear();
    for (const KnownSafes::Entry &safe : m_logic.safes()) {
        const QString name = safe.looking     ? tr("%1 (looking…)")
                             : safe.available ? QStringLiteral("%1")
                                              : tr("%1 (unavailable)");
        m_selector->addItem(name.arg(safe.name), safe.folder);
    }
    m_selector->addItem(tr("Create new..."));
    showState();
}

void MasterPasswordPage::onSelected(int index)
{
    const QString folder = m_selector->itemData(index).toString();
    if (folder.isEmpty()) {
        Q_EMIT createRequested();
        showState();
        return;
    }
    m_password->clearSecret();
    m_logic.choose(folder);
    takeFocus();
}

void MasterPasswordPage::takeFocus()
{
    if (m_logic.state() == UnlockLogic::State::NoSafes)
        m_create->setFocus();
    else
        m_password->setFocus();
}

void MasterPasswordPage::clearSecrets()
{
    m_password->clearSecret();
}

void MasterPasswordPage::unlock()
{
    if (m_logic.state() == UnlockLogic::State::Unlocking) {
        m_logic.cancel();
        return;
    }
    m_logic.unlock(m_password->text());
}

void MasterPasswordPage::showState()
{
    using State = UnlockLogic::State;
    const State state = m_logic.state();
    const bool noSafes = state == State::NoSafes;
    const bool unlocking = state == State::Unlocking;
    if (m_logic.hasPassword())
        m_password->clearSecret();
    m_title->setText(noSafes ? tr("Welcome") : tr("Welcome back"));
    m_subtitle->setText(noSafes ? tr("You have not Safe yet\nCreate one?") : m_logic.invitation());
    const QString folder = m_logic.chosenFolder();
    m_selector->setCurrentIndex(folder.isEmpty() ? -1 : m_selector->findData(folder));
    m_hint->setText(m_logic.hint().isEmpty() ? QString() : tr("Hint: %1").arg(m_logic.hint()));
    m_message->setVisible(!m_logic.message().isEmpty());
    m_message->setMessage(m_logic.message());
    m_selector->setEnabled(!unlocking);
    m_password->setEnabled(!unlocking && state != State::Unavailable);
    for (QPushButton *way : {m_create, m_restore, m_safes, m_import})
        way->setEnabled(!unlocking);
    showProgress(unlocking);
}

void MasterPasswordPage::showProgress(bool unlocking)
{
    const int total = m_logic.itemsTotal();
    const bool starting = unlocking && m_progress->isHidden();
    m_progress->setVisible(unlocking);
    m_progress->setRange(0, total);
    m_progress->setValue(m_logic.itemsDone());
    const QString unlock = m_logic.isOpenElsewhere() ? tr("Unlock anyway") : tr("Unlock");
    m_unlock->setText(unlocking ? tr("Cancel") : unlock);
    setStyleProperty(*m_unlock, "look",
                     unlocking ? QStringLiteral("plain") : QStringLiteral("primary"));
    if (unlocking && total > 0)
        m_subtitle->setText(tr("Unlocking: %1 of %2 items").arg(m_logic.itemsDone()).arg(total));
    else if (unlocking)
        m_subtitle->setText(m_logic.isSaving() ? tr("Saving your last changes first…")
                                               : tr("Unlocking…"));
    else if (m_logic.isSaving())
        m_subtitle->setText(tr("Locked. Saving your last changes…"));
    // Not to a button: a second Enter would cancel what the first one began.
    if (starting && isVisible())
        setFocus();
}

bool MasterPasswordPage::eventFilter(QObject *watched, QEvent *event)
{
    // The lamp changes with a key or while another window has the keyboard.
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::FocusIn)
        m_caps->setOn(m_platform.capsLockOn());
    return QWidget::eventFilter(watched, event);
}

void MasterPasswordPage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_logic.state() == UnlockLogic::State::Unlocking) {
        m_logic.cancel();
        return;
    }
    QWidget::keyPressEvent(event);
}
