#include "ReadyPage.h"

#include "style/Style.h"
#include "widgets/Controls.h"

#include <QKeySequence>

ReadyPage::ReadyPage(QWidget *parent)
    : WizardPage(parent)
{
    struct Row
    {
        const char *keys;
        QString text;
    };
    const Row rows[] = {
        {"Ctrl+N", tr("adds an item")},
        {"Ctrl+F", tr("searches")},
        {"Ctrl+Return", tr("opens the page of a login and fills it in")},
        {"Ctrl+L", tr("locks the safe")},
    };
    auto *card = makeCard(this);
    auto *grid = new QGridLayout(card);
    grid->setContentsMargins(Style::margin, Style::margin, Style::margin, Style::margin);
    grid->setHorizontalSpacing(Style::margin);
    grid->setVerticalSpacing(Style::gap);
    grid->setColumnStretch(1, 1);
    int line = 0;
    for (const Row &row : rows) {
        const QString keys =
            QKeySequence(QLatin1String(row.keys)).toString(QKeySequence::NativeText);
        grid->addWidget(makeLabel(keys, "key", card), line, 0, Qt::AlignLeft);
        auto *text = makeLabel(row.text, "text", card);
        text->setWordWrap(true);
        grid->addWidget(text, line++, 1);
    }
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(card);
    column->addStretch();
}
