#include "AttachmentActions.h"

#include "AttachmentPreview.h"
#include "FileNames.h"
#include "GPMAppCore.h"
#include "OwnerOnlyFile.h"
#include "PMListItem.h"
#include "RenameDialog.h"
#include "dialogs/FileChooser.h"
#include "main/NoticeBanner.h"
#include "widgets/SizeText.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QDir>
#include <QFutureWatcher>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <QUuid>
#include <QtConcurrent>

#include <algorithm>
#include <utility>

namespace {

const int megabyte = 1024 * 1024;

QString faultText(AttachmentFault fault)
{
    switch (fault) {
    case AttachmentFault::TooLarge:
        return AttachmentActions::tr("Maximum attachment file size is %1 megabytes")
            .arg(largestAttachment / megabyte);
    case AttachmentFault::Unreadable:
        return AttachmentActions::tr("This is no file, or it can not be read");
    case AttachmentFault::NotWritten:
        return AttachmentActions::tr("The folder of the safe is full or can not be written to");
    case AttachmentFault::None:
        break;
    }
    return {};
}

/// The bytes in memory; nothing when they cannot be decrypted.
std::optional<QByteArray> bytesOf(const AttachmentReader &reader)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return reader.read(buffer) ? std::make_optional(buffer.data()) : std::nullopt;
}

} // namespace

AttachmentChoosers AttachmentChoosers::dialogs(const Theme &theme, QWidget *widget)
{
    AttachmentChoosers choosers;
    choosers.filesToAttach = [widget] {
        return askForFiles(widget, AttachmentActions::tr("Please choose a file"));
    };
    choosers.placeToSave = [widget](const QString &fileName) {
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
        return askForTarget(widget, AttachmentActions::tr("Save as"),
                            folder + QLatin1Char('/') + fileName);
    };
    choosers.newName = [&theme, widget](const QString &fileName) {
        RenameDialog dialog(fileName, theme, widget->window());
        dialog.setWindowModality(Qt::WindowModal);
        return dialog.exec() == QDialog::Accepted ? dialog.name() : QString();
    };
    choosers.openFile = [](const QString &path) {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    };
    return choosers;
}

AttachmentActions::AttachmentActions(GPMAppCore &core, const Theme &theme, Asker asker,
                                     QWidget *window, Clock clock)
    : QObject(window)
    , m_core(core)
    , m_theme(theme)
    , m_asker(std::move(asker))
    , m_window(window)
    , m_clock(std::move(clock))
    , m_choosers(AttachmentChoosers::dialogs(theme, window))
    , m_banner(new NoticeBanner(QStringLiteral("external-link"), theme, window))
{
    m_banner->setObjectName(QStringLiteral("copiesBanner"));
    QPushButton *remove =
        m_banner->addButton(tr("Remove the copy now"), "plain", "removeCopiesButton");
    connect(remove, &QPushButton::clicked, this, &AttachmentActions::removeCopies);
    connect(&core, &GPMAppCore::currentSafeChanged, this, &AttachmentActions::followSafe);
    connect(&core, &GPMAppCore::requestLock, this, &AttachmentActions::onRequestLock);
    followSafe();
}

AttachmentActions::~AttachmentActions()
{
    m_workers.waitForDone();
}

void AttachmentActions::followSafe()
{
    disconnect(m_doneConnection);
    if (const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe())
        m_doneConnection =
            connect(safe.get(), &GPMSafe::attachmentDone, this, &AttachmentActions::onDone);
}

template <typename Result>
void AttachmentActions::run(std::function<Result()> work, std::function<void(const Result &)> done)
{
    auto *watcher = new QFutureWatcher<Result>(this);
    connect(watcher, &QFutureWatcher<Result>::finished, this,
            [this, watcher, done, session = m_session] {
                watcher->deleteLater();
                if (session == m_session)
                    done(watcher->result());
            });
    watcher->setFuture(QtConcurrent::run(&m_workers, std::move(work)));
}

PMListItem *AttachmentActions::item(const QString &id) const
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    PMListItem *found = safe ? safe->item(id) : nullptr;
    return found && found->type() == PMListItem::Attachment ? found : nullptr;
}

QString AttachmentActions::name(const QString &id) const
{
    const PMListItem *found = item(id);
    if (!found)
        return {};
    const QString fileName = found->property("filename").toString();
    return cleanFileName(fileName.isEmpty() ? found->title() : fileName);
}

QString AttachmentActions::sizeText(const QString &id) const
{
    const qint64 size = item(id) ? m_core.currentSafe()->attachmentSize(id) : -1;
    if (size < 0)
        return tr("Its file is missing in the safe");
    return tr("%1 · encrypted").arg(SizeText::of(size));
}

void AttachmentActions::attach(const QVector<AttachmentInput> &inputs, const QString &parentId)
{
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    // The safe may have been locked, or the item removed, while the user chose.
    if (!safe || !safe->isUnlocked() || (!parentId.isEmpty() && !safe->item(parentId)))
        return;
    for (const AttachmentInput &input : inputs) {
        const AttachmentFault fault = attachmentFault(input.source);
        if (fault != AttachmentFault::None) {
            addFault(input.name, fault);
            continue;
        }
        std::unique_ptr<PMListItem> attachment = m_core.modelCreateItem(PMListItem::Attachment);
        attachment->setId(QUuid::createUuid().toString(QUuid::WithoutBraces));
        attachment->setTitle(input.name);
        attachment->setProperty("filename", input.name);
        m_pending.append({attachment->id(), parentId, input.name});
        safe->addAttachmentAsync(std::move(attachment), input.source, parentId);
    }
    if (m_pending.isEmpty())
        tellFaultsLater();
    else
        Q_EMIT pendingChanged();
}

bool AttachmentActions::chooseAndAttach(const QString &parentId)
{
    const int session = m_session;
    const QStringList paths = m_choosers.filesToAttach();
    if (session != m_session)
        return true;
    QVector<AttachmentInput> inputs;
    for (const QString &path : paths)
        inputs.append(AttachmentInput::ofFile(path));
    attach(inputs, parentId);
    return !inputs.isEmpty();
}

QStringList AttachmentActions::pending(const QString &parentId) const
{
    QStringList names;
    for (const Pending &one : m_pending) {
        if (one.parentId == parentId)
            names.append(one.name);
    }
    return names;
}

void AttachmentActions::onDone(const QString &id, const QString &title, AttachmentFault fault)
{
    const auto one = std::find_if(m_pending.begin(), m_pending.end(),
                                  [&id](const Pending &pending) { return pending.id == id; });
    if (one == m_pending.end())
        return;
    const QString parentId = one->parentId;
    m_pending.erase(one);
    if (fault != AttachmentFault::None)
        addFault(title, fault);
    Q_EMIT pendingChanged();
    if (fault == AttachmentFault::None && parentId.isEmpty())
        Q_EMIT added(id);
    if (m_pending.isEmpty())
        tellFaultsLater();
}

void AttachmentActions::addFault(const QString &name, AttachmentFault fault)
{
    m_faults.append(tr("%1: %2").arg(name, faultText(fault)));
}

void AttachmentActions::tellFaultsLater()
{
    // A question here would hold up another program's drag, or the lock of the safe.
    QTimer::singleShot(0, this, &AttachmentActions::tellFaults);
}

void AttachmentActions::tellFaults()
{
    const QStringList faults = std::exchange(m_faults, {});
    if (!faults.isEmpty())
        m_asker({tr("Can't attach."), faults.join(QLatin1Char('\n')), {tr("OK")}});
}

void AttachmentActions::onRequestLock()
{
    ++m_session;
    m_copies.clear();
    m_banner->dismiss();
}

void AttachmentActions::tellUnreadable(const QString &name) const
{
    m_asker({tr("Can't read the attachment."),
             tr("The file of %1 in the safe is missing or damaged. A backup may hold it "
                "undamaged.")
                 .arg(name),
             {tr("OK")}});
}

void AttachmentActions::preview(const QString &id)
{
    if (!item(id))
        return;
    const AttachmentReader reader = *m_core.currentSafe()->attachmentReader(id);
    using Content = std::optional<PreviewContent>;
    run<Content>(
        [reader]() -> Content {
            std::optional<QByteArray> bytes = bytesOf(reader);
            if (!bytes)
                return std::nullopt;
            PreviewContent content = PreviewContent::of(*bytes);
            wipe(*bytes);
            return content;
        },
        [this, id](const Content &content) { showPreview(id, content); });
}

void AttachmentActions::showPreview(const QString &id, const std::optional<PreviewContent> &content)
{
    if (!item(id))
        return;
    if (!content) {
        tellUnreadable(name(id));
        return;
    }
    auto *dialog = new AttachmentPreview(name(id), *content, m_theme, m_window->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &AttachmentPreview::saveRequested, this, [this, id] { saveAs(id); });
    connect(dialog, &AttachmentPreview::openRequested, this, [this, id] { openElsewhere(id); });
    dialog->open();
}

void AttachmentActions::saveAs(const QString &id)
{
    if (!item(id))
        return;
    const int session = m_session;
    const QString fileName = name(id);
    const QString path = m_choosers.placeToSave(fileName);
    if (path.isEmpty() || session != m_session || !item(id))
        return;
    const AttachmentReader reader = *m_core.currentSafe()->attachmentReader(id);
    run<bool>(
        [reader, path] {
            return writeOwnerOnlyFile(path,
                                      [&reader](QIODevice &file) { return reader.read(file); });
        },
        [this, path, fileName](const bool &good) {
            if (good) {
                Q_EMIT told(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
                return;
            }
            qWarning() << "AttachmentActions: Can't save attachment to:" << path;
            m_asker({tr("Can't save the attachment."),
                     tr("%1 could not be written. Check the free space and the permissions there, "
                        "or choose another place.")
                         .arg(QDir::toNativeSeparators(path)),
                     {tr("OK")}});
        });
}

void AttachmentActions::rename(const QString &id)
{
    if (!item(id))
        return;
    const QString given = m_choosers.newName(name(id));
    PMListItem *attachment = item(id);
    if (given.trimmed().isEmpty() || !attachment)
        return;
    const QString clean = cleanFileName(given);
    // A title that somebody chose for it stays.
    if (attachment->title() == attachment->property("filename").toString())
        attachment->setTitle(clean);
    attachment->setProperty("filename", clean);
    m_core.modelItemChanged(id);
}

void AttachmentActions::openElsewhere(const QString &id)
{
    if (!item(id))
        return;
    const QString fileName = name(id);
    if (isRiskyFileName(fileName)) {
        const int answer =
            m_asker({tr("Not opened"),
                     tr("%1 is a program, or can run one. It can be saved and looked at there.")
                         .arg(fileName),
                     {tr("Save as…"), tr("Cancel")},
                     1});
        if (answer == 0)
            saveAs(id);
        return;
    }
    const AttachmentReader reader = *m_core.currentSafe()->attachmentReader(id);
    PrivateFiles &files = m_core.privateFiles();
    using Path = std::optional<QString>;
    run<Path>(
        [reader, fileName, &files, wipes = files.wipes()] {
            return files.create(
                fileName, [&reader](QIODevice &file) { return reader.read(file); }, wipes);
        },
        [this, fileName](const Path &path) { onOpened(fileName, path); });
}

void AttachmentActions::onOpened(const QString &fileName, const std::optional<QString> &path)
{
    if (!path) {
        m_asker({tr("Can't open the attachment."),
                 tr("No private copy of %1 could be made. Check the free space, and whether the "
                    "preview shows it.")
                     .arg(fileName),
                 {tr("OK")}});
        return;
    }
    if (!m_choosers.openFile(*path)) {
        removeCopies();
        m_asker({tr("Can't open the attachment."),
                 tr("No program was found that opens %1. It can be saved instead.").arg(fileName),
                 {tr("OK")}});
        return;
    }
    m_copies.removeAll(fileName);
    m_copies.append(fileName);
    const QString heading =
        m_copies.size() == 1
            ? tr("“%1” is open in another program.").arg(fileName)
            : tr("%n attachments are open in other programs.", nullptr, m_copies.size());
    m_banner->tell(
        heading, tr("A copy lies readable in a private folder until the safe locks. It can not be "
                    "written to: changes made there are not taken back into the safe. Save them "
                    "under another name and attach that file."));
}

void AttachmentActions::removeCopies()
{
    m_copies.clear();
    m_banner->dismiss();
    if (m_core.privateFiles().wipe())
        return;
    m_asker({tr("Can't remove the copy."),
             tr("Another program may still hold it open. It is tried again when the safe locks."),
             {tr("OK")}});
}
