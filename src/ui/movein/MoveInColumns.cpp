#include "MoveInColumns.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/SelectBox.h"

#include <QScrollArea>

MoveInColumns::MoveInColumns(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_scroll(makeScrollArea(this))
    , m_onward(makeButton(tr("Continue"), "primary", this))
{
    auto *text = makeLabel({}, "text", this);
    text->setWordWrap(true);
    m_text = text;
    m_scroll->setObjectName(QStringLiteral("columnList"));
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_onward->setObjectName(QStringLiteral("useColumnsButton"));
    auto *cancel = makeButton(tr("Cancel"), "plain", this);
    connect(cancel, &QPushButton::clicked, this, &MoveInColumns::cancelRequested);
    connect(m_onward, &QPushButton::clicked, this, &MoveInColumns::accepted);
    auto *foot = new QHBoxLayout;
    foot->setSpacing(Style::spacing);
    foot->addStretch();
    foot->addWidget(cancel);
    foot->addWidget(m_onward);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::gap);
    all->addWidget(m_text);
    all->addWidget(m_scroll, 1);
    all->addLayout(foot);
}

void MoveInColumns::setHeader(const QString &fileName, const QStringList &header)
{
    static_cast<QLabel *>(m_text)->setText(
        tr("The columns of “%1” are not known. Say what each one holds.").arg(fileName));
    const ImportColumns guesses = guessColumns(header);
    m_choices.clear();
    auto *list = new QWidget;
    list->setObjectName(QStringLiteral("columns"));
    auto *rows = new QVBoxLayout(list);
    rows->setContentsMargins(0, 0, Style::gap, 0);
    rows->setSpacing(Style::spacing);
    for (int i = 0; i < header.size(); ++i)
        rows->addWidget(makeRow(header.at(i), guesses.at(i)));
    rows->addStretch();
    m_scroll->setWidget(list);
    showState();
}

QWidget *MoveInColumns::makeRow(const QString &name, const QByteArray &guess)
{
    auto *row = new QWidget;
    auto *label = makeLabel(name, "text", row);
    label->setWordWrap(true);
    auto *choice = new SelectBox(m_theme.icon(QStringLiteral("chevron-down"), Palette::Muted), row);
    choice->setAccessibleName(name);
    choice->addItem(tr("Keep it in the note"), QByteArray());
    choice->addItem(tr("Title"), QByteArray("title"));
    choice->addItem(tr("Address"), QByteArray("url"));
    choice->addItem(tr("User name"), QByteArray("login"));
    choice->addItem(tr("Password"), QByteArray("password"));
    choice->addItem(tr("Note"), QByteArray("note"));
    choice->setCurrentIndex(qMax(0, choice->findData(guess)));
    connect(choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MoveInColumns::showState);
    m_choices.append(choice);
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    line->setSpacing(Style::gap);
    line->addWidget(label, 1);
    line->addWidget(choice, 1);
    return row;
}

ImportColumns MoveInColumns::columns() const
{
    ImportColumns columns;
    for (const QComboBox *choice : m_choices)
        columns.append(choice->currentData().toByteArray());
    return columns;
}

void MoveInColumns::showState()
{
    const ImportColumns chosen = columns();
    m_onward->setEnabled(chosen.contains("password") || chosen.contains("login"));
}

void MoveInColumns::takeFocus()
{
    if (!m_choices.isEmpty())
        m_choices.first()->setFocus();
}
