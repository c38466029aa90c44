#include "MoveInPreview.h"

#include "MoveInTable.h"
#include "MoveInTexts.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

MoveInPreview::MoveInPreview(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_model(new MoveInModel(this))
{
    auto *head = makeHead(theme);
    auto *card = makeCard(this);
    m_table = new MoveInTable(*m_model, theme, card);
    auto *inner = new QVBoxLayout(card);
    inner->setContentsMargins(1, 1, 1, 1);
    inner->addWidget(m_table);
    auto *foot = makeFoot();
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::gap);
    all->addLayout(head);
    all->addWidget(card, 1);
    all->addLayout(foot);
    connect(m_model, &MoveInModel::chosenChanged, this, &MoveInPreview::showCounts);
}

QLayout *MoveInPreview::makeHead(const Theme &theme)
{
    auto *good = new QLabel(this);
    const auto showIcon = [good, &theme] {
        const int size = Style::scaled(20);
        good->setPixmap(theme.icon(QStringLiteral("circle-check"), Palette::Strong)
                            .pixmap(good->window()->windowHandle(), QSize(size, size)));
    };
    showIcon();
    connect(&theme, &Theme::changed, this, showIcon);
    m_file = makeLabel({}, "text", this);
    m_file->setObjectName(QStringLiteral("moveInFile"));
    m_file->setTextFormat(Qt::RichText);
    m_file->setWordWrap(true);
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    row->addWidget(good);
    row->addWidget(m_file, 1);
    for (const bool chosen : {true, false}) {
        auto *button = makeButton(chosen ? tr("Select all") : tr("Select none"), "quiet", this);
        button->setObjectName(chosen ? QStringLiteral("selectAllButton")
                                     : QStringLiteral("selectNoneButton"));
        connect(button, &QPushButton::clicked, this,
                [this, chosen] { m_model->chooseAll(chosen); });
        row->addWidget(button);
    }
    return row;
}

QLayout *MoveInPreview::makeFoot()
{
    m_counts = makeLabel({}, "muted", this);
    m_counts->setObjectName(QStringLiteral("moveInCounts"));
    m_counts->setWordWrap(true);
    auto *cancel = makeButton(tr("Cancel"), "plain", this);
    cancel->setObjectName(QStringLiteral("cancelPreviewButton"));
    m_add = makeButton({}, "primary", this);
    m_add->setObjectName(QStringLiteral("addButton"));
    connect(cancel, &QPushButton::clicked, this, &MoveInPreview::cancelRequested);
    connect(m_add, &QPushButton::clicked, this, &MoveInPreview::addRequested);
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    row->addWidget(m_counts, 1);
    row->addWidget(cancel);
    row->addWidget(m_add);
    return row;
}

void MoveInPreview::setResult(const QString &fileName, const std::shared_ptr<ImportResult> &result)
{
    m_model->setResult(result);
    if (!result)
        return;
    const int count = int(result->file.entries.size());
    m_file->setText(QStringLiteral("<b>%1</b> · %2 · %3")
                        .arg(fileName.toHtmlEscaped(), MoveInTexts::recognised(result->file.format),
                             result->file.isJson() ? tr("%n entries", nullptr, count)
                                                   : tr("%n rows", nullptr, count)));
    m_table->setCurrentIndex(m_model->index(0, MoveInModel::Chosen));
    m_table->scrollToTop();
}

void MoveInPreview::showCounts()
{
    const MoveInModel::Counts counts = m_model->counts();
    QStringList parts{counts.onlyLogins ? tr("%n logins will be added", nullptr, counts.chosen)
                                        : tr("%n items will be added", nullptr, counts.chosen)};
    if (counts.alreadyThere > 0)
        parts.append(tr("%n are already there", nullptr, counts.alreadyThere));
    if (counts.unreadable > 0)
        parts.append(tr("%n unreadable", nullptr, counts.unreadable));
    if (counts.leftOut > 0)
        parts.append(tr("%n left out", nullptr, counts.leftOut));
    m_counts->setText(parts.join(QStringLiteral(" · ")));
    m_add->setText(counts.onlyLogins ? tr("Add %n logins", nullptr, counts.chosen)
                                     : tr("Add %n items", nullptr, counts.chosen));
    m_add->setEnabled(counts.chosen > 0);
}

void MoveInPreview::takeFocus()
{
    m_table->setFocus();
}
