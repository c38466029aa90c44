#include "SafesDialog.h"

#include "GPMAppCore.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

const QSize usualSize(540, 380);

} // namespace

SafesDialog::SafesDialog(GPMAppCore &core, const CloudOffers &offers, const Theme &theme,
                         QWidget *parent, Clock clock)
    : FramedDialog(tr("Safes"), theme, parent)
    , m_core(core)
    , m_offers(offers)
    , m_theme(theme)
    , m_clock(std::move(clock))
    , m_scroll(makeScrollArea(this))
    , m_cloud(makeButton({}, "plain", this))
    , m_details(core.knownSafes().environment().files)
{
    setObjectName(QStringLiteral("safesDialog"));
    FramedDialog::resize(Style::scaled(usualSize.width()), Style::scaled(usualSize.height()));
    layOut();
    connect(&core.knownSafes(), &KnownSafes::changed, this, &SafesDialog::refresh);
    connect(&core.safeFacts(), &SafeFacts::changed, this, &SafesDialog::showRows);
    connect(&core, &GPMAppCore::safeLockedChanged, this, &SafesDialog::showRows);
    connect(&core, &GPMAppCore::currentSafeChanged, this, &SafesDialog::showRows);
    connect(&core.backups(), &Backups::finished, this, &SafesDialog::refresh);
    connect(&theme, &Theme::changed, this, &SafesDialog::showRows);
    m_showing.setSingleShot(true);
    m_showing.setInterval(0);
    connect(&m_showing, &QTimer::timeout, this, &SafesDialog::showRows);
    connect(&m_details, &SafeDetailsReader::changed, &m_showing, QOverload<>::of(&QTimer::start));
    if (core.currentSafe())
        m_selected = core.knownSafes().listed(core.currentSafe()->folder());
    connect(&core.cloudFolders(), &CloudFolders::changed, this, &SafesDialog::showOffers);
    refresh();
    showOffers();
    core.cloudFolders().look();
}

void SafesDialog::layOut()
{
    m_scroll->setObjectName(QStringLiteral("safeList"));
    m_scroll->setAccessibleName(tr("Safes"));
    m_scroll->setFocusPolicy(Qt::NoFocus);

    auto *create = makeButton(tr("New safe"), "primary", this);
    create->setObjectName(QStringLiteral("newSafeButton"));
    create->setIcon(m_theme.icon(QStringLiteral("plus"), Palette::OnAccent));
    auto *import = makeButton(tr("Import…"), "plain", this);
    import->setObjectName(QStringLiteral("importButton"));
    import->setIcon(m_theme.icon(QStringLiteral("file-import"), Palette::Text));
    import->setToolTip(tr("Make a safe from an archive or a backup"));
    m_cloud->setObjectName(QStringLiteral("cloudSafesButton"));
    m_cloud->setIcon(m_theme.icon(QStringLiteral("cloud-down"), Palette::Text));
    auto *folder = makeIconButton(m_theme.icon(QStringLiteral("folder-open"), Palette::Text),
                                  tr("Open the folder of a safe…"), "framed", this);
    folder->setObjectName(QStringLiteral("openFolderButton"));
    connect(create, &QPushButton::clicked, this, &SafesDialog::createRequested);
    connect(import, &QPushButton::clicked, this, &SafesDialog::importRequested);
    connect(folder, &QToolButton::clicked, this, &SafesDialog::openFolderRequested);
    connect(m_cloud, &QPushButton::clicked, this, [this] {
        m_offers.open();
        showOffers();
    });
    auto *foot = new QHBoxLayout;
    foot->setSpacing(Style::spacing);
    foot->addWidget(create);
    foot->addWidget(import);
    foot->addWidget(m_cloud);
    foot->addStretch();
    foot->addWidget(folder);
    body().addWidget(m_scroll, 1);
    body().addSpacing(Style::spacing);
    body().addLayout(foot);
}

void SafesDialog::showOffers()
{
    const int count = m_offers.count ? m_offers.count() : 0;
    m_cloud->setVisible(count > 0);
    m_cloud->setText(tr("From cloud folder (%1)").arg(count));
}

void SafesDialog::refresh()
{
    showRows();
    startReading();
}

QVector<SafeInfo> SafesDialog::safes() const
{
    QVector<SafeInfo> list;
    const std::shared_ptr<GPMSafe> &current = m_core.currentSafe();
    const QString open = current && current->isUnlocked() ? current->folder() : QString();
    QHash<QString, QString> names;
    const QVector<KnownSafes::Entry> entries = m_core.knownSafes().entries();
    for (const KnownSafes::Entry &entry : entries) {
        SafeInfo safe;
        safe.folder = entry.folder;
        safe.name = entry.name;
        names.insert(entry.folder, entry.name);
        safe.isOpen = !open.isEmpty() && m_core.knownSafes().listed(open) == entry.folder;
        safe.fact = m_core.safeFacts().of(entry.folder);
        // What is open has changed since.
        if (safe.isOpen)
            safe.fact.itemCount = OpenSafeTrace::countItems(*current);
        const auto details = m_details.of(entry.folder);
        safe.isRead = details.has_value();
        safe.details = details.value_or(SafeDetails());
        list.append(safe);
    }
    for (SafeInfo &safe : list)
        safe.copyOf = names.value(safe.details.copyOf);
    return list;
}

void SafesDialog::showRows()
{
    auto *inside = new QWidget;
    inside->setObjectName(QStringLiteral("safeRows"));
    auto *column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 4, 0);
    column->setSpacing(2);
    const bool hadFocus = std::any_of(m_rows.begin(), m_rows.end(), [](const SafeRow *row) {
        return row->hasFocus() || row->isAncestorOf(row->window()->focusWidget());
    });
    const int scrolled = m_scroll->verticalScrollBar()->value();
    m_rows.clear();
    const QDateTime now = m_clock();
    const QVector<SafeInfo> list = safes();
    for (const SafeInfo &safe : list) {
        auto *row = new SafeRow(safe, now, m_theme, inside);
        column->addWidget(row);
        m_rows.append(row);
        // What it leads to may make the rows anew.
        connect(
            row, &SafeRow::commanded, this,
            [this, safe](SafeRow::Command command) { Q_EMIT commanded(command, safe); },
            Qt::QueuedConnection);
        connect(row, &SafeRow::stepped, this, [this, row](int rows) { step(row, rows); });
    }
    if (list.isEmpty()) {
        auto *none = makeLabel(tr("There is no safe yet. Make a new one, or import an archive."),
                               "muted", inside);
        none->setWordWrap(true);
        column->addWidget(none);
    }
    column->addStretch();
    // A menu that is open belongs to the rows that go.
    if (QWidget *former = m_scroll->takeWidget())
        former->deleteLater();
    m_scroll->setWidget(inside);
    inside->show();
    m_scroll->verticalScrollBar()->setValue(scrolled);
    const auto chosen = std::find_if(m_rows.begin(), m_rows.end(), [this](const SafeRow *row) {
        return row->safe().folder == m_selected;
    });
    SafeRow *row = chosen != m_rows.end() ? *chosen : m_rows.value(0);
    if (!row)
        return;
    select(row);
    if (hadFocus || !isVisible())
        row->setFocus();
}

void SafesDialog::select(SafeRow *row)
{
    m_selected = row->safe().folder;
    for (SafeRow *each : qAsConst(m_rows))
        setStyleProperty(*each, "selected", each == row);
    m_scroll->ensureWidgetVisible(row, 0, 0);
}

void SafesDialog::step(SafeRow *from, int rows)
{
    SafeRow *row = m_rows.value(m_rows.indexOf(from) + rows);
    if (!row)
        return;
    select(row);
    if (rows != 0)
        row->setFocus(Qt::TabFocusReason);
}

void SafesDialog::startReading()
{
    QStringList folders;
    const QVector<KnownSafes::Entry> entries = m_core.knownSafes().entries();
    for (const KnownSafes::Entry &entry : entries)
        folders.append(entry.folder);
    m_details.start(folders, m_core.backups().folder());
}
