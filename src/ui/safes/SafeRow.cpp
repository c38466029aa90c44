#include "SafeRow.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

namespace {

const int signSize = 26;

} // namespace

SafeRow::SafeRow(const SafeInfo &safe, const QDateTime &now, const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_safe(safe)
    , m_theme(theme)
    , m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("safeRow"));
    setFocusPolicy(Qt::StrongFocus);
    m_menu->setObjectName(QStringLiteral("safeRowMenu"));
    layOut(now);
    fillMenu();
}

void SafeRow::layOut(const QDateTime &now)
{
    const SafeSign sign = safeSign(m_safe);
    auto *icon = new QLabel(this);
    const int side = Style::scaled(signSize);
    icon->setFixedSize(side, side);
    icon->setPixmap(m_theme.icon(QLatin1String(sign.icon), sign.color)
                        .pixmap(window()->windowHandle(), QSize(side, side)));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(1);
    auto *name = new ElidedLabel("itemTitle", this);
    name->setFullText(m_safe.name);
    texts->addWidget(name);
    const QStringList lines = safeLines(m_safe, now);
    for (const QString &line : lines) {
        auto *label = makeLabel(line, "muted", this);
        label->setObjectName(QStringLiteral("safeLine"));
        label->setWordWrap(true);
        texts->addWidget(label);
    }
    setAccessibleName(m_safe.name);
    setAccessibleDescription(lines.join(QStringLiteral(". ")));

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(10, Style::gap, Style::gap, Style::gap);
    row->setSpacing(Style::gap);
    row->addWidget(icon, 0, Qt::AlignVCenter);
    row->addLayout(texts, 1);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    if (!m_safe.isThere()) {
        auto *locate = makeButton(tr("Locate…"), "plain", this);
        locate->setObjectName(QStringLiteral("locateButton"));
        locate->setAccessibleName(tr("%1: %2").arg(locate->text(), m_safe.name));
        connect(locate, &QPushButton::clicked, this, [this] { Q_EMIT commanded(Locate); });
        buttons->addWidget(locate);
    }
    auto *more = makeIconButton(m_theme.icon(QStringLiteral("dots"), Palette::Text),
                                tr("More about “%1”").arg(m_safe.name), "framed", this);
    more->setObjectName(QStringLiteral("moreButton"));
    more->setPopupMode(QToolButton::InstantPopup);
    more->setMenu(m_menu);
    buttons->addWidget(more);
    row->addLayout(buttons);
}

void SafeRow::fillMenu()
{
    struct Row
    {
        Command command;
        const char *name; ///< of the action
        QString text;
        bool offered;
        const char *keys;
    };
    const bool there = m_safe.isThere();
    const Row rows[] = {
        {Open, "openAction", tr("Open"), there, "Return"},
        {Rename, "renameAction", tr("Rename…"), there, "F2"},
        {Export, "exportAction", tr("Export…"), there, ""},
        {ShowFolder, "showFolderAction", tr("Show folder"), there, ""},
        {Locate, "locateAction", tr("Locate…"), !there, ""},
        {RemoveFromList, "removeAction", tr("Remove from list…"), true, "Del"},
        {Delete, "deleteAction", tr("Delete…"), there, ""},
    };
    for (const Row &row : rows) {
        if (!row.offered)
            continue;
        if (row.command == RemoveFromList)
            m_menu->addSeparator();
        const QString keys =
            QKeySequence(QLatin1String(row.keys)).toString(QKeySequence::NativeText);
        QAction *action =
            m_menu->addAction(keys.isEmpty() ? row.text : row.text + QLatin1Char('\t') + keys);
        action->setObjectName(QLatin1String(row.name));
        connect(action, &QAction::triggered, this,
                [this, command = row.command] { Q_EMIT commanded(command); });
    }
}

void SafeRow::keyPressEvent(QKeyEvent *event)
{
    const bool there = m_safe.isThere();
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        Q_EMIT stepped(event->key() == Qt::Key_Up ? -1 : 1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT commanded(there ? Open : Locate);
        return;
    case Qt::Key_F2:
        if (there)
            Q_EMIT commanded(Rename);
        return;
    case Qt::Key_Delete:
        Q_EMIT commanded(RemoveFromList);
        return;
    default:
        QFrame::keyPressEvent(event);
    }
}

void SafeRow::mouseDoubleClickEvent(QMouseEvent *)
{
    Q_EMIT commanded(m_safe.isThere() ? Open : Locate);
}

void SafeRow::contextMenuEvent(QContextMenuEvent *event)
{
    setFocus();
    m_menu->popup(event->globalPos());
}

void SafeRow::focusInEvent(QFocusEvent *event)
{
    QFrame::focusInEvent(event);
    Q_EMIT stepped(0);
}
