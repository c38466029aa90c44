#include "MoveInDialog.h"

#include "GPMAppCore.h"
#include "MoveInColumns.h"
#include "MoveInEnd.h"
#include "MoveInPreview.h"
#include "MoveInProgress.h"
#include "MoveInStart.h"
#include "MoveInTexts.h"
#include "OwnerOnlyFile.h"
#include "attachments/DropMark.h"
#include "dialogs/FileChooser.h"
#include "style/Style.h"

#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QPointer>
#include <QStackedWidget>
#include <QStandardPaths>

#include <utility>

namespace {

const QSize usualSize(720, 500);
const QSize smallestSize(600, 420);

QSize scaled(const QSize &size)
{
    return {Style::scaled(size.width()), Style::scaled(size.height())};
}

QString chooseFile(QWidget *parent)
{
    return askForFile(
        parent, MoveInDialog::tr("Choose the exported file"),
        QStandardPaths::writableLocation(QStandardPaths::DownloadLocation),
        MoveInDialog::tr("Exports of passwords (%1)").arg(QStringLiteral("*.csv *.json *.txt")) +
            QStringLiteral(";;") + MoveInDialog::tr("All files (%1)").arg(QStringLiteral("*")));
}

QString chooseTarget(QWidget *parent, const QString &name)
{
    return askForTarget(parent, MoveInDialog::tr("Save as"),
                        QDir::homePath() + QLatin1Char('/') + name);
}

/// What the safe holds, as values; the trash does not count.
std::vector<ImportTraits> traitsOf(const GPMSafe &safe)
{
    std::vector<ImportTraits> traits;
    for (const PMListItem *item : safe.items()) {
        if (!item->deleted() && item->type() != PMListItem::Attachment)
            traits.push_back(ImportTraits::of(*item));
    }
    return traits;
}

/// The one file of a drop; empty when there is none, or several.
QString droppedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data ? data->urls() : QList<QUrl>();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

/// Lets an object go whose own signal led here.
template <typename Object>
void release(std::unique_ptr<Object> &object)
{
    if (object)
        object.release()->deleteLater();
}

} // namespace

MoveInDialog::MoveInDialog(Parts parts, const Theme &theme, QWidget *parent)
    : FramedDialog(tr("Bring passwords over"), theme, parent)
    , m_parts(std::move(parts))
    , m_safe(m_parts.core.currentSafe())
    , m_pages(new QStackedWidget(this))
    , m_dropMark(new DropMark(tr("Drop the exported file here"), theme, this))
{
    setObjectName(QStringLiteral("moveInDialog"));
    if (!m_parts.asker)
        m_parts.asker = dialogAsker(this);
    if (!m_parts.chooseFile)
        m_parts.chooseFile = chooseFile;
    if (!m_parts.chooseTarget)
        m_parts.chooseTarget = chooseTarget;
    setMinimumSize(scaled(smallestSize));
    resize(scaled(usualSize));
    setAcceptDrops(true);
    makePages(theme);
    connectPages();
    connect(m_safe.get(), &GPMSafe::lockedChanged, this, &MoveInDialog::onLocked);
    showPage(m_start);
}

MoveInDialog::~MoveInDialog()
{
    stopReading();
}

void MoveInDialog::open(GPMAppCore &core, const Theme &theme, QWidget *window)
{
    if (!core.currentSafe() || !core.currentSafe()->isUnlocked())
        return;
    auto *dialog = window->findChild<MoveInDialog *>();
    if (!dialog) {
        dialog = new MoveInDialog({core}, theme, window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setWindowModality(Qt::WindowModal);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void MoveInDialog::makePages(const Theme &theme)
{
    m_start = new MoveInStart(theme, m_pages);
    m_columns = new MoveInColumns(theme, m_pages);
    m_progress = new MoveInProgress(m_pages);
    m_preview = new MoveInPreview(theme, m_pages);
    m_end = new MoveInEnd(theme, m_pages);
    for (QWidget *page : {static_cast<QWidget *>(m_start), static_cast<QWidget *>(m_columns),
                          static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_preview),
                          static_cast<QWidget *>(m_end)})
        m_pages->addWidget(page);
    body().addWidget(m_pages);
}

void MoveInDialog::connectPages()
{
    const auto startAgain = [this] {
        dropResult();
        showPage(m_start);
    };
    connect(m_start, &MoveInStart::chooseRequested, this, [this] {
        // A lock closes it while the user is choosing.
        const QPointer<MoveInDialog> alive(this);
        const QString path = m_parts.chooseFile(this);
        if (alive && !path.isEmpty() && m_safe->isUnlocked())
            readFile(path);
    });
    connect(m_columns, &MoveInColumns::accepted, this, [this] { read(m_columns->columns()); });
    connect(m_columns, &MoveInColumns::cancelRequested, this, startAgain);
    connect(m_progress, &MoveInProgress::cancelRequested, this, [this] {
        if (m_adder) {
            m_adder->cancel();
            return;
        }
        stopReading();
        showPage(m_start);
    });
    connect(m_preview, &MoveInPreview::addRequested, this, &MoveInDialog::add);
    connect(m_preview, &MoveInPreview::cancelRequested, this, startAgain);
    connect(m_end, &MoveInEnd::copyRequested, this, [this] {
        m_parts.core.clipboard().copy(m_end->reportText(), false);
        m_end->setMessage(tr("Copied."));
    });
    connect(m_end, &MoveInEnd::saveRequested, this, &MoveInDialog::saveReport);
    connect(m_end, &MoveInEnd::deleteRequested, this, &MoveInDialog::deleteFile);
    connect(m_end, &MoveInEnd::closeRequested, this, &MoveInDialog::accept);
}

template <typename Page>
void MoveInDialog::showPage(Page *page)
{
    m_pages->setCurrentWidget(page);
    page->takeFocus();
}

void MoveInDialog::readFile(const QString &path)
{
    // Where a link leads to, so that deleting it deletes the passwords.
    const QString target = QFileInfo(path).canonicalFilePath();
    m_path = target.isEmpty() ? path : target;
    read({});
}

void MoveInDialog::read(const ImportColumns &columns)
{
    stopReading();
    dropResult();
    m_start->setMessage({});
    m_progress->begin(tr("Reading “%1”…").arg(QFileInfo(m_path).fileName()));
    showPage(m_progress);
    m_reader = std::make_unique<ImportReader>(m_path, traitsOf(*m_safe), columns);
    connect(m_reader.get(), &ImportReader::finished, this, &MoveInDialog::onRead);
    m_reader->start();
}

void MoveInDialog::onRead()
{
    m_result = m_reader->result();
    release(m_reader);
    const QString name = QFileInfo(m_path).fileName();
    if (m_result->file.problem == ImportFile::UnknownColumns) {
        m_columns->setHeader(name, m_result->file.header);
        showPage(m_columns);
        return;
    }
    if (m_result->fault != ImportResult::Good || m_result->file.entries.empty()) {
        m_start->setMessage(MoveInTexts::problem(*m_result));
        dropResult();
        showPage(m_start);
        return;
    }
    m_preview->setResult(name, m_result);
    showPage(m_preview);
}

void MoveInDialog::stopReading()
{
    if (!m_reader)
        return;
    // It is not waited for: it ends by itself soon, and wipes what it has read.
    ImportReader *reader = m_reader.release();
    reader->disconnect(this);
    connect(reader, &ImportReader::finished, reader, &QObject::deleteLater);
    reader->cancel();
}

void MoveInDialog::add()
{
    m_chosen = m_preview->chosen();
    m_adder = std::make_unique<ImportAdder>(m_safe, m_result, m_chosen);
    const auto showProgress = [this](int done, int total) {
        m_progress->setProgress(tr("Added %1 of %2…").arg(done).arg(total), done, total);
    };
    connect(m_adder.get(), &ImportAdder::progress, this, showProgress);
    connect(m_adder.get(), &ImportAdder::finished, this, &MoveInDialog::onAdded);
    m_progress->begin({});
    showProgress(0, m_chosen.size());
    showPage(m_progress);
    m_adder->start();
}

void MoveInDialog::onAdded()
{
    const MoveInReport report =
        MoveInReport::of(*m_result, m_chosen, m_adder->added(), m_adder->outcome());
    release(m_adder);
    dropResult();
    if (report.outcome == ImportAdder::Locked) {
        done(Rejected);
        Q_EMIT m_parts.core.message(report.title(), report.trouble());
        return;
    }
    m_end->setReport(report, QFileInfo(m_path).fileName());
    showPage(m_end);
}

void MoveInDialog::dropResult()
{
    m_preview->setResult({}, nullptr);
    m_result.reset();
}

void MoveInDialog::onLocked()
{
    if (m_safe->isUnlocked())
        return;
    if (m_adder) {
        m_adder->onLocked();
        return;
    }
    stopReading();
    dropResult();
    done(Rejected);
}

void MoveInDialog::reject()
{
    if (!m_safe->isUnlocked())
        onLocked();
    else if (m_pages->currentWidget() == m_progress)
        m_progress->cancel();
    else
        done(Rejected);
}

void MoveInDialog::saveReport()
{
    const QPointer<MoveInDialog> alive(this);
    const QString path = m_parts.chooseTarget(this, tr("What came in.txt"));
    if (!alive || path.isEmpty() || !m_safe->isUnlocked())
        return;
    const bool saved = writeOwnerOnlyFile(path, m_end->reportText().toUtf8());
    m_end->setMessage(saved ? tr("Saved.")
                            : tr("The file cannot be written. Choose another folder."));
}

void MoveInDialog::deleteFile()
{
    const QString name = QFileInfo(m_path).fileName();
    const Question question{
        tr("Delete “%1”?").arg(name),
        tr("The file does not go to the bin: it is gone at once. Nobody can promise that nothing "
           "of it stays behind: SSDs, backups and folders that are synchronised may keep what was "
           "deleted for a while."),
        {tr("Delete"), tr("Cancel")}};
    const QPointer<MoveInDialog> alive(this);
    if (m_parts.asker(question) != 0 || !alive)
        return;
    const bool gone = !QFileInfo::exists(m_path) || QFile::remove(m_path);
    m_end->showDeleted(gone, gone ? tr("The file “%1” is deleted. If you made other copies of it, "
                                       "delete them, too.")
                                        .arg(name)
                                  : tr("The file cannot be deleted. Close the program that has it "
                                       "open, then try again:\n%1")
                                        .arg(QDir::toNativeSeparators(m_path)));
}

bool MoveInDialog::holdsWork() const
{
    return m_pages->currentWidget() != m_start;
}

bool MoveInDialog::takesDrops() const
{
    return m_pages->currentWidget() == m_start || m_pages->currentWidget() == m_preview;
}

void MoveInDialog::dragEnterEvent(QDragEnterEvent *event)
{
    if (!takesDrops() || droppedFile(event->mimeData()).isEmpty())
        return;
    event->acceptProposedAction();
    m_dropMark->setGeometry(contentsRect());
    m_dropMark->raise();
    m_dropMark->show();
}

void MoveInDialog::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dropMark->hide();
}

void MoveInDialog::dropEvent(QDropEvent *event)
{
    m_dropMark->hide();
    const QString path = droppedFile(event->mimeData());
    if (path.isEmpty() || !takesDrops())
        return;
    event->acceptProposedAction();
    readFile(path);
}

void MoveInDialog::resizeEvent(QResizeEvent *event)
{
    FramedDialog::resizeEvent(event);
    m_dropMark->setGeometry(contentsRect());
}
