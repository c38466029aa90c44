#include "ItemFooter.h"

#include "CopyNotice.h"
#include "ItemPane.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QBoxLayout>

namespace {

const int footerHeight = 58;
const int pageMargin = 28;

} // namespace

ItemFooter::ItemFooter(ClipboardKeeper &clipboard, const Theme &theme, QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("footer"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(Style::scaled(footerHeight));
    auto *notice = new CopyNotice(clipboard, theme, this);
    m_remove = add(ItemPane::tr("Remove"), "plain", "removeButton", &ItemFooter::removeRequested);
    m_remove->setIcon(theme.icon(QStringLiteral("trash"), Palette::Text));
    m_restore =
        add(ItemPane::tr("Restore"), "plain", "restoreButton", &ItemFooter::restoreRequested);
    m_restore->setIcon(theme.icon(QStringLiteral("arrow-back-up"), Palette::Text));
    m_discard = add(ItemPane::tr("Discard changes"), "plain", "discardButton",
                    &ItemFooter::discardRequested);
    m_save = add(ItemPane::tr("Save"), "primary", "saveButton", &ItemFooter::saveRequested);
    m_save->setToolTip(ItemPane::tr("Save (Ctrl+S)"));

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(pageMargin, 0, pageMargin, 0);
    row->setSpacing(Style::spacing);
    row->addWidget(notice, 1);
    row->addStretch();
    for (QPushButton *button : {m_restore, m_remove, m_discard, m_save})
        row->addWidget(button);
}

QPushButton *ItemFooter::add(const QString &text, const char *look, const char *name,
                             void (ItemFooter::*wish)())
{
    QPushButton *button = makeButton(text, look, this);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, wish);
    return button;
}

void ItemFooter::setState(const State &state)
{
    m_remove->setVisible(!state.isNew);
    const QString remove = state.trashed ? ItemPane::tr("Delete forever") : ItemPane::tr("Remove");
    m_remove->setAccessibleName(remove);
    m_remove->setToolTip(remove);
    // Beside the editor's buttons there is room for its icon alone.
    m_remove->setText(state.editing ? QString() : remove);
    setStyleProperty(*m_remove, "narrow", state.editing);
    m_restore->setVisible(state.trashed);
    m_discard->setVisible(state.editing);
    m_save->setVisible(state.editing);
}

QVector<QWidget *> ItemFooter::editorButtons() const
{
    return {m_remove, m_discard, m_save};
}
