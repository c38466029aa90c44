#include "CloudPanel.h"

#include "CloudSafeRow.h"
#include "CloudTexts.h"
#include "dialogs/FileChooser.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"
#include "widgets/SelectBox.h"

#include <QDir>
#include <QEvent>
#include <QPointer>

#include <utility>

namespace {

const int shortestPlace = 10; ///< in letters

QString chooseFolderFrom(QWidget *parent, const QString &start)
{
    return askForFolder(parent, {}, start);
}

} // namespace

CloudPanel::CloudPanel(const Parts &parts, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_theme(theme)
    , m_noFolder(makeLabel(tr("No folder of a cloud provider was found. Choose the one that yours "
                              "keeps the same on all computers, or a folder on a USB stick."),
                           "muted", this))
    , m_place(new SelectBox(theme.icon(QStringLiteral("chevron-down"), Palette::Muted), this))
    , m_other(makeButton(tr("Other folder…"), "plain", this))
    , m_fault(new MessageLabel(this))
    , m_safes(new QVBoxLayout)
    , m_noSafe(makeLabel(tr("There is no safe yet."), "muted", this))
    , m_import(makeButton({}, "plain", this))
{
    setObjectName(QStringLiteral("cloudPanel"));
    m_place->setObjectName(QStringLiteral("cloudPlace"));
    m_place->setAccessibleName(tr("Cloud folder"));
    // A long path is cut, the window keeps its width.
    m_place->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_place->setMinimumContentsLength(shortestPlace);
    m_other->setObjectName(QStringLiteral("otherFolderButton"));
    m_fault->setObjectName(QStringLiteral("cloudFault"));
    m_import->setObjectName(QStringLiteral("cloudImportButton"));
    m_import->setIcon(theme.icon(QStringLiteral("cloud-down"), Palette::Text));
    if (!m_parts.asker)
        m_parts.asker = dialogAsker(this);
    if (!m_parts.chooseFolder)
        m_parts.chooseFolder = chooseFolderFrom;
    layOut();
    follow();
    showPlaces();
    showSafes();
    m_parts.folders.look();
}

void CloudPanel::layOut()
{
    auto *what = makeLabel(tr("A synchronised safe has an encrypted copy in a folder that your "
                              "cloud provider carries to your other computers. What you change on "
                              "one arrives on all."),
                           "muted", this);
    what->setWordWrap(true);
    m_noFolder->setWordWrap(true);
    m_fault->setWordWrap(true);
    setStyleProperty(*m_fault, "tone", QStringLiteral("error"));
    m_fault->hide();
    auto *place = new QHBoxLayout;
    place->setSpacing(Style::spacing);
    place->addWidget(m_place, 1);
    place->addWidget(m_other);
    m_safes->setSpacing(0);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::spacing);
    all->addWidget(what);
    all->addWidget(m_noFolder);
    all->addLayout(place);
    all->addWidget(m_fault);
    all->addLayout(m_safes);
    all->addWidget(m_noSafe);
    all->addWidget(m_import, 0, Qt::AlignLeft);
}

void CloudPanel::follow()
{
    connect(m_other, &QPushButton::clicked, this, &CloudPanel::chooseOtherFolder);
    connect(m_import, &QPushButton::clicked, this, &CloudPanel::importRequested);
    connect(&m_parts.folders, &CloudFolders::changed, this, &CloudPanel::showPlaces);
    connect(&m_parts.safes, &KnownSafes::changed, this, &CloudPanel::showSafes);
    connect(&m_parts.sync, &CloudSync::statusChanged, this, &CloudPanel::showAllStatus);
    connect(&m_parts.sync, &CloudSync::turnedOn, this,
            [this](const QString &, const MirrorChoice &choice) {
                showFault(CloudTexts::fault(choice, m_place->currentData().toString()));
                m_parts.folders.look();
            });
}

void CloudPanel::showPlaces()
{
    const CloudFolders::Found &found = m_parts.folders.found();
    const QString before = m_place->currentData().toString();
    m_place->clear();
    for (const SyncFolder &account : found.accounts) {
        const QString path = QDir::toNativeSeparators(account.path);
        m_place->addItem(account.account == SyncFolder::Account::Personal
                             ? tr("Personal account: %1").arg(path)
                             : tr("Business account: %1").arg(path),
                         account.path);
    }
    for (const QString &folder : found.others)
        m_place->addItem(QDir::toNativeSeparators(folder), folder);
    m_place->setCurrentIndex(qMax(0, m_place->findData(before)));
    // A search that was under way when the folder was named does not have it yet.
    if (m_place->findData(m_wanted) >= 0)
        m_place->setCurrentIndex(m_place->findData(std::exchange(m_wanted, {})));
    m_place->setToolTip(m_place->currentText());
    m_place->setVisible(m_place->count() > 0);
    m_noFolder->setVisible(m_place->count() == 0);
    m_import->setText(found.offers.size() == 1
                          ? tr("Bring over “%1”…").arg(found.offers.first().name)
                          : tr("Bring over a safe (%1)…").arg(found.offers.size()));
    m_import->setVisible(!found.offers.isEmpty());
}

void CloudPanel::showSafes()
{
    qDeleteAll(m_rows);
    m_rows.clear();
    const QVector<KnownSafes::Entry> entries = m_parts.safes.entries();
    QWidget *before = m_other;
    for (const KnownSafes::Entry &entry : entries) {
        if (!entry.available)
            continue;
        auto *row = new CloudSafeRow(entry.name, m_theme, this);
        connect(row, &CloudSafeRow::switched, this,
                [this, entry](bool on) { onSwitched(entry.folder, entry.name, on); });
        connect(row, &CloudSafeRow::synchronizeRequested, &m_parts.sync, &CloudSync::synchronize);
        connect(row, &CloudSafeRow::passwordRequested, this, &CloudPanel::passwordRequested);
        m_rows.insert(entry.folder, row);
        m_safes->addWidget(row);
        setTabOrder(before, row);
        before = row;
    }
    setTabOrder(before, m_import);
    m_noSafe->setVisible(m_rows.isEmpty());
    showAllStatus();
}

void CloudPanel::showAllStatus()
{
    const QStringList folders = m_rows.keys();
    for (const QString &folder : folders)
        showStatus(folder);
}

void CloudPanel::showStatus(const QString &safeFolder)
{
    const QString open = m_parts.openSafe();
    m_rows.value(safeFolder)
        ->setStatus(m_parts.sync.status(safeFolder),
                    !open.isEmpty() && m_parts.safes.facts().isSame(open, safeFolder),
                    m_parts.clock());
}

void CloudPanel::showFault(const QString &fault)
{
    m_fault->setVisible(!fault.isEmpty());
    m_fault->setMessage(fault);
}

void CloudPanel::chooseOtherFolder()
{
    // A lock closes the settings while the user is choosing.
    const QPointer<CloudPanel> alive(this);
    const QString folder = m_parts.chooseFolder(
        this, m_place->count() > 0 ? m_place->currentData().toString() : QDir::homePath());
    if (!alive || folder.isEmpty())
        return;
    showFault({});
    m_wanted = QDir::fromNativeSeparators(folder);
    m_parts.folders.add(m_wanted);
}

void CloudPanel::onSwitched(const QString &safeFolder, const QString &name, bool on)
{
    showFault({});
    if (!on)
        turnOff(safeFolder, name);
    else if (m_place->count() > 0)
        m_parts.sync.turnOn(safeFolder, m_place->currentData().toString());
    else
        showFault(tr("Choose a folder first."));
}

void CloudPanel::turnOff(const QString &safeFolder, const QString &name)
{
    const int answer = m_parts.asker(
        {tr("Stop synchronising “%1”?").arg(name),
         tr("The safe on this computer stays as it is. Its copy in the cloud folder can stay for "
            "your other computers, or be removed; then they can't synchronise any more."),
         {tr("Keep the copy"), tr("Remove the copy"), tr("Cancel")},
         0});
    if (answer == 2)
        return;
    m_parts.sync.turnOff(safeFolder, answer == 1);
}

bool CloudPanel::event(QEvent *event)
{
    // A drive may have been connected, or a safe have arrived, while the user was elsewhere.
    if (event->type() == QEvent::WindowActivate)
        m_parts.folders.look();
    return QWidget::event(event);
}
