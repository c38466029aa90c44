#include "SideWindows.h"

#include "GPMAppCore.h"
#include "RandomSource.h"
#include "WebPages.h"
#include "backups/BackupRow.h"
#include "browsers/ApprovalsPanel.h"
#include "browsers/InstallSteps.h"
#include "style/Style.h"
#include "widgets/Controls.h"

#include <utility>

namespace {

void bringUp(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

SideWindows::SideWindows(GPMAppCore &core, UiSettings &uiSettings, const Theme &theme,
                         std::function<QVector<Setting>()> settings)
    : m_core(core)
    , m_uiSettings(uiSettings)
    , m_theme(theme)
    , m_makeSettings(std::move(settings))
    , m_passwordChange(core, theme)
    , m_updates(core.settings(), uiSettings, core.platform(), theme)
{
    connect(&core, &GPMAppCore::requestLock, this, &SideWindows::closeForLock);
    connect(&m_updates, &UpdateDesk::pageRequested, this, &openWebPage);
    connect(&core, &GPMAppCore::safeLockedChanged, &m_recent,
            [this](bool locked) { m_recent.setKeeping(!locked); });
    const std::shared_ptr<GPMSafe> &safe = core.currentSafe();
    m_recent.setKeeping(safe && safe->isUnlocked());
}

SideWindows::~SideWindows()
{
    setMain(nullptr);
}

void SideWindows::setMain(QWidget *main)
{
    delete m_generator;
    delete m_settings;
    delete m_restore;
    m_main = main;
    m_passwordChange.setWindow(main);
    m_updates.setMain(main);
}

void SideWindows::openGenerator()
{
    showGenerator({[this](const QString &password) { m_core.placePasswordValue(password); },
                   [this] {
                       return m_core.hasExtension()
                                  ? QString()
                                  : tr("No browser with the extension is connected");
                   }});
}

void SideWindows::openGeneratorFor(QObject *owner,
                                   const std::function<void(const QString &)> &place)
{
    const QPointer<QObject> alive(owner);
    showGenerator(
        {[alive, place](const QString &password) {
             if (alive)
                 place(password);
         },
         [alive] { return alive ? QString() : tr("What it was made for is no longer edited"); }});
    connect(owner, &QObject::destroyed, m_generator, &PasswordGeneratorDialog::updatePlace,
            Qt::QueuedConnection);
}

void SideWindows::showGenerator(const PasswordTarget &target)
{
    if (!m_generator)
        m_generator = new PasswordGeneratorDialog(
            {m_uiSettings, m_core.settings(), m_core.clipboard(), m_recent, &systemRandom}, m_theme,
            m_main);
    m_generator->setTarget(target);
    bringUp(*m_generator);
}

void SideWindows::openSettings()
{
    if (!m_settings)
        m_settings = new SettingsDialog(m_makeSettings(), m_uiSettings, m_theme, m_main);
    bringUp(*m_settings);
}

QWidget *SideWindows::makeBackupRow(QWidget *parent)
{
    auto *row = new BackupRow({m_core.backups(), m_core.settings(), m_core.knownSafes()}, parent);
    connect(row, &BackupRow::restoreRequested, this, &SideWindows::openRestore);
    return row;
}

QWidget *SideWindows::makePasswordRow(QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *change = makeButton(tr("Change password…"), "plain", row);
    change->setObjectName(QStringLiteral("changePasswordButton"));
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(makeLabel(tr("Master password"), "plain", row));
    texts->addWidget(makeLabel(tr("The one that opens this safe."), "muted", row));
    line->addLayout(texts, 1);
    line->addWidget(change);
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    change->setEnabled(safe && safe->isUnlocked());
    connect(&m_core, &GPMAppCore::safeLockedChanged, change, &QWidget::setDisabled);
    connect(change, &QPushButton::clicked, this, &SideWindows::openChangePassword);
    return row;
}

QWidget *SideWindows::makeBrowserPanel(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins({});
    column->setSpacing(Style::margin);
    column->addWidget(new PluginsPage(pluginParts(), panel));
    column->addWidget(new ApprovalsPanel(m_core.approvals(), panel));
    return panel;
}

PluginsPage::Parts SideWindows::pluginParts()
{
    return {m_core.browsers(), [this] { return m_core.extensionBundle(); },
            [this](const BrowserInfo &browser, QWidget *owner) { install(browser, owner); }};
}

void SideWindows::install(const BrowserInfo &browser, QWidget *owner)
{
    const auto copy = [this](const QString &text) { m_core.clipboard().copy(text, false); };
    installExtension(browser, InstallWays::system(copy), m_theme, owner);
}

void SideWindows::openChangePassword()
{
    m_passwordChange.open();
}

void SideWindows::openRestore()
{
    if (!m_restore) {
        m_restore = new RestoreDialog({m_core.backups(), m_core.settings()}, m_theme, m_main);
        connect(m_restore, &RestoreDialog::chosen, this, [this](const QString &archive) {
            // It would lie above what the user is led to.
            if (m_settings)
                m_settings->close();
            Q_EMIT restoreRequested(archive);
        });
    }
    bringUp(*m_restore);
}

void SideWindows::closeForLock()
{
    // It may show a password that is in use by now.
    if (m_generator)
        m_generator->close();
}
