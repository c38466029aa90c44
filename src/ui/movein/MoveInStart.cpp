#include "MoveInStart.h"

#include "MoveInTexts.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"

#include <QListWidget>

namespace {

const int listWidth = 170;
const int pictureSize = 32;

} // namespace

MoveInStart::MoveInStart(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_message(new MessageLabel(this))
    , m_programs(new QListWidget(this))
    , m_steps(makeLabel({}, "text", this))
{
    m_message->setObjectName(QStringLiteral("moveInMessage"));
    m_message->hide();
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::gap);
    all->addWidget(makePlace(theme));
    all->addWidget(m_message);
    all->addWidget(makeLabel(tr("How to make the file"), "heading", this));
    all->addWidget(makeGuide(), 1);
}

QWidget *MoveInStart::makePlace(const Theme &theme)
{
    auto *card = makeCard(this);
    auto *picture = new QLabel(card);
    const auto showPicture = [picture, &theme] {
        picture->setPixmap(
            theme.icon(QStringLiteral("file-import"), Palette::Muted)
                .pixmap(picture->window()->windowHandle(), QSize(pictureSize, pictureSize)));
    };
    showPicture();
    connect(&theme, &Theme::changed, this, showPicture);
    auto *text = makeLabel(tr("Drop the exported file here, or choose it. Nothing is added before "
                              "you have seen what will come in."),
                           "text", card);
    text->setWordWrap(true);
    auto *choose = makeButton(tr("Choose file…"), "primary", card);
    choose->setObjectName(QStringLiteral("chooseFileButton"));
    connect(choose, &QPushButton::clicked, this, &MoveInStart::chooseRequested);
    m_choose = choose;
    auto *row = new QHBoxLayout(card);
    row->setContentsMargins(Style::margin, Style::margin, Style::margin, Style::margin);
    row->setSpacing(Style::margin);
    row->addWidget(picture);
    row->addWidget(text, 1);
    row->addWidget(choose);
    return card;
}

QWidget *MoveInStart::makeGuide()
{
    auto *guide = new QWidget(this);
    m_programs->setObjectName(QStringLiteral("moveInPrograms"));
    m_programs->setAccessibleName(tr("How to make the file"));
    m_programs->setFixedWidth(Style::scaled(listWidth));
    m_programs->setFrameShape(QFrame::NoFrame);
    for (const MoveInTexts::Guide &one : MoveInTexts::guides())
        m_programs->addItem(one.program);
    m_steps->setObjectName(QStringLiteral("moveInSteps"));
    m_steps->setWordWrap(true);
    m_steps->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_steps->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_programs, &QListWidget::currentRowChanged, this, &MoveInStart::showSteps);
    m_programs->setCurrentRow(0);
    auto *row = new QHBoxLayout(guide);
    row->setContentsMargins({});
    row->setSpacing(Style::margin);
    row->addWidget(m_programs);
    row->addWidget(m_steps, 1);
    return guide;
}

void MoveInStart::showSteps(int program)
{
    const QStringList steps = MoveInTexts::guides().value(program).steps;
    QStringList lines;
    for (int i = 0; i < steps.size(); ++i)
        lines.append(QStringLiteral("%1.  %2").arg(i + 1).arg(steps.at(i)));
    m_steps->setText(lines.join(QStringLiteral("\n\n")));
    // The steps follow the keyboard without taking it.
    if (QListWidgetItem *item = m_programs->item(program))
        item->setData(Qt::AccessibleDescriptionRole, lines.join(QLatin1Char('\n')));
}

void MoveInStart::setMessage(const QString &text)
{
    m_message->setVisible(!text.isEmpty());
    m_message->setMessage(text);
}

void MoveInStart::takeFocus()
{
    m_choose->setFocus();
}
