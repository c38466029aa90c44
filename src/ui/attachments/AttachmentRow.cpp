#include "AttachmentRow.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

namespace {

const int rowHeight = 54;
const int rowMargin = 14;

/// The name of an attachment as a button: plain, with a frame while it has the keyboard.
class NameButton : public QAbstractButton
{
public:
    NameButton(const QString &name, const QString &detail, const Theme &theme, QWidget *parent)
        : QAbstractButton(parent)
        , m_theme(theme)
    {
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setFixedHeight(Style::scaled(rowHeight));
        setAttribute(Qt::WA_Hover);
        m_icon = theme.icon(QStringLiteral("paperclip"), Palette::Muted);
        auto *title = new ElidedLabel("body", this);
        title->setFullText(name);
        title->setObjectName(QStringLiteral("attachmentName"));
        auto *small = makeLabel(detail, "label", this);
        small->setObjectName(QStringLiteral("attachmentDetail"));
        auto *texts = new QVBoxLayout(this);
        texts->setContentsMargins(2 * rowMargin + Style::iconSize - 4, 0, Style::spacing, 0);
        texts->setSpacing(2);
        texts->addStretch();
        texts->addWidget(title);
        texts->addWidget(small);
        texts->addStretch();
        for (QWidget *label : {static_cast<QWidget *>(title), static_cast<QWidget *>(small)})
            label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const Palette &palette = m_theme.palette();
        const QRectF ground = QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5);
        painter.setBrush(underMouse() && isEnabled() ? QBrush(palette.color(Palette::List))
                                                     : QBrush(Qt::NoBrush));
        painter.setPen(hasFocus() ? QPen(palette.color(Palette::Accent)) : QPen(Qt::NoPen));
        painter.drawRoundedRect(ground, Style::corner, Style::corner);
        m_icon.paint(&painter, QRect(rowMargin, 0, Style::iconSize, height()));
    }

private:
    const Theme &m_theme;
    QIcon m_icon;
};

} // namespace

AttachmentRow::AttachmentRow(const QString &name, const QString &detail, const Theme &theme,
                             QWidget *parent)
    : QWidget(parent)
    , m_name(name)
    , m_layout(new QHBoxLayout(this))
    , m_front(new NameButton(name, detail, theme, this))
{
    setObjectName(QStringLiteral("attachmentRow"));
    m_front->setObjectName(QStringLiteral("previewButton"));
    m_front->setEnabled(false);
    m_front->setAccessibleName(tr("%1, %2").arg(name, detail));
    m_layout->setContentsMargins(0, 0, rowMargin, 0);
    m_layout->setSpacing(4);
    m_layout->addWidget(m_front, 1);
    connect(m_front, &QAbstractButton::clicked, this, &AttachmentRow::previewRequested);
}

void AttachmentRow::addActions(const Theme &theme, bool removable)
{
    m_hasActions = true;
    m_removable = removable;
    m_front->setEnabled(true);
    m_front->setCursor(Qt::PointingHandCursor);
    m_front->setToolTip(tr("Show %1").arg(m_name));
    m_parts = {m_front};
    const auto addButton = [this, &theme](const char *icon, const QString &tip, const char *name,
                                          void (AttachmentRow::*signal)()) {
        auto *button =
            makeIconButton(theme.icon(QLatin1String(icon), Palette::Muted), tip, "plain", this);
        button->setAccessibleName(tr("%1: %2").arg(tip, m_name));
        button->setObjectName(QLatin1String(name));
        connect(button, &QToolButton::clicked, this, signal);
        m_layout->addWidget(button);
        m_parts.append(button);
    };
    addButton("download", tr("Save as…"), "saveAttachmentButton", &AttachmentRow::saveRequested);
    if (removable)
        addButton("x", tr("Remove"), "removeAttachmentButton", &AttachmentRow::removeRequested);
}

bool AttachmentRow::event(QEvent *event)
{
    // Before the window takes them for the whole item.
    if (event->type() == QEvent::ShortcutOverride && m_removable) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_F2 || key == Qt::Key_Delete) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void AttachmentRow::keyPressEvent(QKeyEvent *event)
{
    if (!m_hasActions)
        return QWidget::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_front->hasFocus())
            return Q_EMIT previewRequested();
        break;
    case Qt::Key_F2:
        if (m_removable)
            return Q_EMIT renameRequested();
        break;
    case Qt::Key_Delete:
        if (m_removable)
            return Q_EMIT removeRequested();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void AttachmentRow::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_hasActions)
        return;
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("attachmentMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Show"), this, &AttachmentRow::previewRequested);
    menu->addAction(tr("Open in another program"), this, &AttachmentRow::openRequested);
    menu->addAction(tr("Save as…"), this, &AttachmentRow::saveRequested);
    if (m_removable) {
        menu->addAction(tr("Rename…"), this, &AttachmentRow::renameRequested)
            ->setShortcut(Qt::Key_F2);
        menu->addSeparator();
        menu->addAction(tr("Remove"), this, &AttachmentRow::removeRequested)
            ->setShortcut(Qt::Key_Delete);
    }
    menu->popup(event->globalPos());
}
