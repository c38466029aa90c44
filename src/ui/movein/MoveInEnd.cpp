#include "MoveInEnd.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"

#include <QPlainTextEdit>

MoveInEnd::MoveInEnd(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_icon(new QLabel(this))
    , m_title(makeLabel({}, "heading", this))
    , m_trouble(new MessageLabel(this))
    , m_report(new QPlainTextEdit(this))
    , m_message(new MessageLabel(this))
{
    m_title->setObjectName(QStringLiteral("moveInTitle"));
    m_trouble->setObjectName(QStringLiteral("moveInTrouble"));
    m_report->setObjectName(QStringLiteral("moveInReport"));
    m_report->setAccessibleName(tr("What did not come in"));
    m_report->setReadOnly(true);
    m_report->setTabChangesFocus(true);
    m_message->setObjectName(QStringLiteral("endMessage"));
    setStyleProperty(*m_message, "tone", QStringLiteral("muted"));
    auto *head = new QHBoxLayout;
    head->setSpacing(Style::spacing);
    head->addWidget(m_icon);
    head->addWidget(m_title, 1);
    auto *advice = makeAdvice(theme);
    auto *foot = makeFoot();
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::gap);
    all->addLayout(head);
    all->addWidget(m_trouble);
    all->addWidget(m_report, 1);
    all->addStretch();
    all->addWidget(advice);
    all->addLayout(foot);
}

QWidget *MoveInEnd::makeAdvice(const Theme &theme)
{
    auto *card = makeCard(this);
    auto *picture = new QLabel(card);
    const auto showPicture = [picture, &theme] {
        const int size = Style::scaled(24);
        picture->setPixmap(theme.icon(QStringLiteral("alert-triangle"), Palette::Weak)
                               .pixmap(picture->window()->windowHandle(), QSize(size, size)));
    };
    showPicture();
    connect(&theme, &Theme::changed, this, showPicture);
    m_advice = makeLabel({}, "text", card);
    m_advice->setObjectName(QStringLiteral("deleteAdvice"));
    m_advice->setWordWrap(true);
    m_delete = makeButton(tr("Delete the file"), "plain", card);
    m_delete->setObjectName(QStringLiteral("deleteFileButton"));
    m_delete->setIcon(theme.icon(QStringLiteral("trash"), Palette::Text));
    connect(m_delete, &QPushButton::clicked, this, &MoveInEnd::deleteRequested);
    auto *row = new QHBoxLayout(card);
    row->setContentsMargins(Style::margin, Style::gap, Style::margin, Style::gap);
    row->setSpacing(Style::gap);
    row->addWidget(picture);
    row->addWidget(m_advice, 1);
    row->addWidget(m_delete);
    return card;
}

QLayout *MoveInEnd::makeFoot()
{
    m_reportButtons = new QWidget(this);
    auto *copy = makeButton(tr("Copy report"), "plain", m_reportButtons);
    copy->setObjectName(QStringLiteral("copyReportButton"));
    auto *save = makeButton(tr("Save report…"), "plain", m_reportButtons);
    save->setObjectName(QStringLiteral("saveReportButton"));
    m_close = makeButton(tr("Close"), "primary", this);
    m_close->setObjectName(QStringLiteral("closeMoveInButton"));
    connect(copy, &QPushButton::clicked, this, &MoveInEnd::copyRequested);
    connect(save, &QPushButton::clicked, this, &MoveInEnd::saveRequested);
    connect(m_close, &QPushButton::clicked, this, &MoveInEnd::closeRequested);
    auto *reportRow = new QHBoxLayout(m_reportButtons);
    reportRow->setContentsMargins({});
    reportRow->setSpacing(Style::spacing);
    reportRow->addWidget(copy);
    reportRow->addWidget(save);
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    row->addWidget(m_reportButtons);
    row->addWidget(m_message, 1);
    row->addWidget(m_close);
    return row;
}

void MoveInEnd::setReport(const MoveInReport &report, const QString &fileName)
{
    m_text = report.text(fileName);
    const bool good = report.trouble().isEmpty() && report.added > 0;
    const int size = Style::scaled(24);
    const QIcon icon = good ? m_theme.icon(QStringLiteral("circle-check"), Palette::Strong)
                            : m_theme.icon(QStringLiteral("alert-triangle"), Palette::Weak);
    m_icon->setPixmap(icon.pixmap(window()->windowHandle(), QSize(size, size)));
    m_title->setText(report.title());
    m_trouble->setVisible(!report.trouble().isEmpty());
    m_trouble->setMessage(report.trouble());
    m_report->setPlainText(m_text);
    m_report->setVisible(!report.groups.isEmpty());
    m_reportButtons->setVisible(!report.groups.isEmpty());
    m_message->setMessage({});
    m_advice->setText(
        report.hasLosses()
            ? tr("The file “%1” still holds your passwords for everyone to read. Look at what did "
                 "not come in, then delete the file.")
                  .arg(fileName)
            : tr("The file “%1” still holds your passwords for everyone to read. Delete it now.")
                  .arg(fileName));
    m_delete->show();
}

void MoveInEnd::showDeleted(bool deleted, const QString &text)
{
    m_delete->setVisible(!deleted);
    m_advice->setText(text);
    if (deleted)
        takeFocus();
}

void MoveInEnd::setMessage(const QString &text)
{
    m_message->setMessage(text);
}

void MoveInEnd::takeFocus()
{
    m_close->setFocus();
}
