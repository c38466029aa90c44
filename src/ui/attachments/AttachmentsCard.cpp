#include "AttachmentsCard.h"

#include "AttachmentActions.h"
#include "AttachmentRow.h"
#include "DropMark.h"
#include "GPMAppCore.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QMimeData>

AttachmentsCard::AttachmentsCard(GPMAppCore &core, AttachmentActions &actions, const Theme &theme,
                                 QWidget *parent)
    : QWidget(parent)
    , m_core(core)
    , m_actions(actions)
    , m_theme(theme)
    , m_column(new QVBoxLayout(this))
    , m_attach(makeButton(tr("Attach files…"), "link", this))
    , m_message(new MessageLabel(this))
{
    setObjectName(QStringLiteral("attachmentsCard"));
    layOut();
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &AttachmentsCard::refresh);
    connect(&actions, &AttachmentActions::pendingChanged, this, [this] { m_refresh.start(); });
    connect(&core, &GPMAppCore::currentSafeChanged, this, &AttachmentsCard::followSafe);
    followSafe();
}

void AttachmentsCard::layOut()
{
    m_attach->setObjectName(QStringLiteral("attachButton"));
    m_attach->setIcon(m_theme.icon(QStringLiteral("paperclip"), Palette::Accent));
    m_attach->setToolTip(tr("Files and pictures can also be dropped here, or pasted with Ctrl+V"));
    connect(m_attach, &QPushButton::clicked, this, &AttachmentsCard::choose);
    m_message->setObjectName(QStringLiteral("attachMessage"));
    m_message->hide();
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    row->addWidget(m_attach);
    row->addWidget(m_message, 1);
    row->addStretch();
    m_column->setContentsMargins({});
    m_column->setSpacing(Style::spacing);
    m_column->addLayout(row);
}

void AttachmentsCard::followSafe()
{
    for (const QMetaObject::Connection &connection : qAsConst(m_safeConnections))
        disconnect(connection);
    m_safeConnections.clear();
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    if (!safe)
        return;
    const auto later = [this] { m_refresh.start(); };
    m_safeConnections = {connect(safe.get(), &GPMSafe::itemAdded, this, later),
                         connect(safe.get(), &GPMSafe::itemRemoved, this, later)};
}

void AttachmentsCard::setItem(const PMListItem *item)
{
    m_item = item;
    if (item)
        connect(item, &QObject::destroyed, this, &AttachmentsCard::refresh, Qt::UniqueConnection);
    m_message->hide();
    refresh();
}

bool AttachmentsCard::isEditable() const
{
    return m_item && !m_item->deleted();
}

QString AttachmentsCard::parentId() const
{
    // What comes to an attachment stands beside it.
    return m_item && m_item->type() != PMListItem::Attachment ? m_item->id() : QString();
}

void AttachmentsCard::watch(const PMListItem &item)
{
    m_watched.append(
        connect(&item, &PMListItem::timestampChanged, this, [this] { m_refresh.start(); }));
}

void AttachmentsCard::clearRows()
{
    for (const QMetaObject::Connection &connection : qAsConst(m_watched))
        disconnect(connection);
    m_watched.clear();
    m_rows.clear();
    // At once, so that nothing of an item that went stays on the screen.
    delete m_card;
    m_card = nullptr;
}

void AttachmentsCard::refresh()
{
    m_refresh.stop();
    clearRows();
    m_attach->setVisible(isEditable() && m_item->type() != PMListItem::Attachment);
    if (m_item) {
        watch(*m_item);
        addRows();
    }
    Q_EMIT focusPartsChanged();
}

void AttachmentsCard::addRows()
{
    if (m_item->type() == PMListItem::Attachment) {
        addRow(*m_item);
        return;
    }
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    const QStringList refs = m_item->refs();
    for (const QString &id : refs) {
        const PMListItem *attachment = safe ? safe->item(id) : nullptr;
        if (!attachment || attachment->type() != PMListItem::Attachment)
            continue;
        watch(*attachment);
        if (!attachment->deleted())
            addRow(*attachment);
    }
    const QStringList names = m_actions.pending(m_item->id());
    for (const QString &name : names)
        addToCard(new AttachmentRow(name, tr("Being encrypted…"), m_theme, this));
}

void AttachmentsCard::addRow(const PMListItem &attachment)
{
    const QString id = attachment.id();
    auto *row = new AttachmentRow(m_actions.name(id), m_actions.sizeText(id), m_theme, this);
    row->addActions(m_theme, isEditable());
    connect(row, &AttachmentRow::previewRequested, &m_actions,
            [this, id] { m_actions.preview(id); });
    connect(row, &AttachmentRow::saveRequested, &m_actions, [this, id] { m_actions.saveAs(id); });
    connect(row, &AttachmentRow::renameRequested, &m_actions, [this, id] { m_actions.rename(id); });
    connect(row, &AttachmentRow::openRequested, &m_actions,
            [this, id] { m_actions.openElsewhere(id); });
    connect(
        row, &AttachmentRow::removeRequested, this, [this, id] { Q_EMIT removeRequested(id); },
        Qt::QueuedConnection);
    addToCard(row);
}

void AttachmentsCard::addToCard(AttachmentRow *row)
{
    if (!m_card) {
        m_card = makeCard(this);
        auto *column = new QVBoxLayout(m_card);
        column->setContentsMargins(1, 1, 1, 1);
        column->setSpacing(0);
        m_column->insertWidget(0, m_card);
    }
    auto *column = static_cast<QVBoxLayout *>(m_card->layout());
    if (!m_rows.isEmpty()) {
        auto *line = new QFrame(m_card);
        line->setObjectName(QStringLiteral("cardLine"));
        column->addWidget(line);
    }
    column->addWidget(row);
    m_rows.append(row);
}

QVector<QWidget *> AttachmentsCard::focusParts() const
{
    QVector<QWidget *> parts;
    for (const AttachmentRow *row : m_rows)
        parts += row->focusParts();
    parts.append(m_attach);
    return parts;
}

void AttachmentsCard::choose()
{
    const QPointer<const PMListItem> item = m_item;
    const bool chosen = m_actions.chooseAndAttach(parentId());
    m_message->setVisible(!chosen && item && item == m_item);
    m_message->setMessage(chosen ? QString() : tr("Please choose a file"));
}

bool AttachmentsCard::attach(const QMimeData *given)
{
    if (m_item && !isEditable())
        return false;
    m_message->hide();
    const QVector<AttachmentInput> inputs = AttachmentInput::of(given, systemTime());
    m_actions.attach(inputs, parentId());
    return !inputs.isEmpty();
}

bool AttachmentsCard::paste()
{
    return attach(QApplication::clipboard()->mimeData());
}

void AttachmentsCard::acceptDropsOn(QWidget *widget)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
    m_dropMark = new DropMark(tr("Drop to attach"), m_theme, widget);
}

void AttachmentsCard::showDropMark(bool shown)
{
    m_dropMark->setVisible(shown);
    m_dropMark->raise();
}

bool AttachmentsCard::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto *drag = static_cast<QDragMoveEvent *>(event);
        const bool takes = isEditable() && AttachmentInput::canTake(drag->mimeData());
        // The files stay where they are, whatever the other program proposes.
        drag->setDropAction(Qt::CopyAction);
        drag->setAccepted(takes);
        showDropMark(takes);
        return true;
    }
    case QEvent::DragLeave:
        showDropMark(false);
        return true;
    case QEvent::Drop: {
        auto *drop = static_cast<QDropEvent *>(event);
        showDropMark(false);
        drop->setDropAction(Qt::CopyAction);
        drop->setAccepted(isEditable() && attach(drop->mimeData()));
        return true;
    }
    case QEvent::Resize:
        m_dropMark->setGeometry(static_cast<QWidget *>(watched)->rect());
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
