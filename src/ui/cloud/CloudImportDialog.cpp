#include "CloudImportDialog.h"

#include "dialogs/FileChooser.h"
#include "main/EmptyState.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QDir>
#include <QListWidget>
#include <QPointer>

namespace {

const QSize usualSize(460, 340);

QString chooseFolderFrom(QWidget *parent, const QString &start)
{
    return askForFolder(parent, {}, start);
}

} // namespace

CloudImportDialog::CloudImportDialog(CloudFolders &folders, const Theme &theme, QWidget *parent,
                                     FolderChooser chooseFolder)
    : FramedDialog(tr("From the cloud folder"), theme, parent)
    , m_folders(folders)
    , m_chooseFolder(chooseFolder ? std::move(chooseFolder) : chooseFolderFrom)
    , m_list(new QListWidget(this))
    , m_empty(new EmptyState(theme, this))
    , m_other(makeButton(tr("Other folder…"), "plain", this))
    , m_cancel(makeButton(tr("Cancel"), "plain", this))
    , m_take(makeButton(tr("Bring over"), "primary", this))
{
    setObjectName(QStringLiteral("cloudImportDialog"));
    m_list->setObjectName(QStringLiteral("cloudOffers"));
    m_list->setAccessibleName(tr("Safes in the cloud folder"));
    m_list->setWordWrap(true);
    m_other->setObjectName(QStringLiteral("otherFolderButton"));
    m_take->setObjectName(QStringLiteral("bringOverButton"));
    m_take->setDefault(true);
    m_empty->setContent(QStringLiteral("cloud-down"), tr("No other safe found"),
                        tr("Safes that you synchronise on another computer appear here as soon as "
                           "your cloud program has brought them."));
    layOut();
    FramedDialog::setMinimumSize(Style::scaled(usualSize.width()),
                                 Style::scaled(usualSize.height()));
    connect(&m_folders, &CloudFolders::changed, this, &CloudImportDialog::showOffers);
    connect(m_list, &QListWidget::itemSelectionChanged, this,
            [this] { m_take->setEnabled(m_list->currentItem()); });
    connect(m_list, &QListWidget::itemActivated, this, &CloudImportDialog::choose);
    connect(m_other, &QPushButton::clicked, this, &CloudImportDialog::lookElsewhere);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_take, &QPushButton::clicked, this, &CloudImportDialog::choose);
    showOffers();
    m_folders.look();
}

void CloudImportDialog::layOut()
{
    auto *text = makeLabel(tr("These safes are synchronised by another computer. Bring one over to "
                              "use it here, too; it opens with its own master password."),
                           "muted", this);
    text->setWordWrap(true);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addWidget(m_other);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_take);
    body().addWidget(text);
    body().addSpacing(Style::spacing);
    body().addWidget(m_list, 1);
    body().addWidget(m_empty, 1);
    body().addSpacing(Style::spacing);
    body().addLayout(buttons);
}

void CloudImportDialog::showOffers()
{
    const QString before =
        m_list->currentItem() ? m_list->currentItem()->data(Qt::UserRole).toString() : QString();
    const QVector<MirroredSafe> &offers = m_folders.found().offers;
    m_list->clear();
    for (const MirroredSafe &safe : offers) {
        const QString made = QLocale().toString(QDateTime::fromMSecsSinceEpoch(safe.created).date(),
                                                QLocale::ShortFormat);
        auto *item = new QListWidgetItem(tr("%1\nmade on %2").arg(safe.name, made), m_list);
        item->setToolTip(QDir::toNativeSeparators(safe.path));
        item->setData(Qt::UserRole, safe.path);
        item->setData(Qt::UserRole + 1, safe.name);
        if (safe.path == before)
            m_list->setCurrentItem(item);
    }
    if (!m_list->currentItem())
        m_list->setCurrentRow(0);
    m_list->setVisible(!offers.isEmpty());
    m_empty->setVisible(offers.isEmpty());
    m_take->setEnabled(m_list->currentItem());
}

void CloudImportDialog::lookElsewhere()
{
    const QPointer<CloudImportDialog> alive(this);
    const QString folder = m_chooseFolder(this, QDir::homePath());
    if (alive && !folder.isEmpty())
        m_folders.add(folder);
}

void CloudImportDialog::choose()
{
    const QListWidgetItem *item = m_list->currentItem();
    if (!item)
        return;
    Q_EMIT chosen(item->data(Qt::UserRole).toString(), item->data(Qt::UserRole + 1).toString());
    accept();
}
