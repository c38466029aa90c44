#include "ShortcutsDialog.h"

#include "ShortcutTable.h"
#include "style/Style.h"
#include "widgets/Controls.h"

#include <QGridLayout>
#include <QScrollArea>

namespace {

const QSize usualSize(520, 560);

QString keysText(const QVector<QKeySequence> &keys)
{
    QStringList texts;
    for (const QKeySequence &key : keys) {
        const QString text = key.toString(QKeySequence::NativeText);
        // The two Enter keys are one to the user.
        if (!text.contains(QStringLiteral("Enter")))
            texts.append(text);
    }
    return texts.join(ShortcutsDialog::tr(" or ", "between two keys"));
}

} // namespace

ShortcutsDialog::ShortcutsDialog(const Theme &theme, QWidget *parent)
    : FramedDialog(tr("Keyboard shortcuts"), theme, parent)
{
    setObjectName(QStringLiteral("shortcutsDialog"));
    resize(usualSize);
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("findings"));
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, Style::spacing, 0);
    grid->setHorizontalSpacing(Style::margin);
    grid->setVerticalSpacing(Style::spacing);
    grid->setColumnStretch(0, 1);
    int line = 0;
    const QVector<ShortcutRow> table = shortcutTable();
    for (const ShortcutRow &row : table) {
        auto *text = makeLabel(row.text, "text", content);
        text->setWordWrap(true);
        auto *keys = makeLabel(keysText(row.keys), "key", content);
        // Read together they tell what is to be pressed for what.
        keys->setAccessibleName(tr("%1: %2").arg(row.text, keys->text()));
        grid->addWidget(text, line, 0);
        grid->addWidget(keys, line++, 1, Qt::AlignRight | Qt::AlignVCenter);
    }
    grid->setRowStretch(line, 1);
    auto *scroll = makeScrollArea(this);
    scroll->setObjectName(QStringLiteral("findingList"));
    scroll->setAccessibleName(tr("Keyboard shortcuts"));
    scroll->setWidget(content);
    body().addWidget(scroll, 1);
}
