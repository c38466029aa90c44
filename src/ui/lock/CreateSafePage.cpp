#include "CreateSafePage.h"

#include "CreateSafeForm.h"
#include "GPMAppCore.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>

namespace {

const int columnWidth = 316;

} // namespace

CreateSafePage::CreateSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_core(core)
    , m_offer(makeLabel({}, "muted", this))
    , m_form(new CreateSafeForm(core, theme, CreateSafeForm::Dark, this))
    , m_back(makeButton(tr("Back"), "plain", this))
    , m_create(makeButton(tr("Create"), "primary", this))
{
    setObjectName(QStringLiteral("createSafePage"));
    m_offer->setObjectName(QStringLiteral("createOffer"));
    m_back->setObjectName(QStringLiteral("backButton"));
    m_create->setObjectName(QStringLiteral("createButton"));
    layOut(theme);
    connect(m_form, &CreateSafeForm::changed, this,
            [this] { m_create->setEnabled(m_form->canCreate()); });
    connect(m_form, &CreateSafeForm::submitted, m_form, &CreateSafeForm::create);
    connect(m_create, &QPushButton::clicked, m_form, &CreateSafeForm::create);
    connect(m_back, &QPushButton::clicked, this, &CreateSafePage::backRequested);
    m_create->setEnabled(false);
}

void CreateSafePage::layOut(const Theme &theme)
{
    auto *column = new QVBoxLayout;
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_offer);
    column->addSpacing(Style::margin);
    column->addWidget(makeLabel(tr("Create a safe"), "title", this));
    column->addSpacing(Style::spacing);
    auto *warning =
        makeLabel(tr("Only you know its password. It cannot be recovered."), "muted", this);
    warning->setWordWrap(true);
    column->addWidget(warning);
    column->addSpacing(Style::margin);
    column->addWidget(m_form);
    column->addSpacing(Style::spacing);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addWidget(m_back, 1);
    buttons->addWidget(m_create, 1);
    column->addLayout(buttons);

    auto *frame = new QWidget(this);
    frame->setFixedWidth(Style::scaled(columnWidth));
    frame->setLayout(column);
    auto *inside = new QWidget(this);
    inside->setObjectName(QStringLiteral("createSafeBody"));
    auto *rows = new QVBoxLayout(inside);
    rows->setContentsMargins({});
    rows->addStretch(3);
    rows->addLayout(centred(frame));
    rows->addStretch(4);
    // With large texts on a small screen it is higher than the window.
    auto *scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("createSafeScroll"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(inside);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, Style::margin, 0, Style::margin);
    all->addWidget(scroll);
    // Who begins on a new computer may have backups of another one.
    auto *restore = makeButton(tr("Restore from a backup…"), "link", this);
    restore->setObjectName(QStringLiteral("restoreFromCreateLink"));
    restore->setIcon(theme.lockIcon(QStringLiteral("archive"), Palette::SidebarText));
    connect(restore, &QPushButton::clicked, this, &CreateSafePage::restoreRequested);
    auto *links = new QHBoxLayout;
    links->setContentsMargins(Style::margin, 0, Style::margin, 0);
    links->addStretch();
    links->addWidget(restore);
    all->addLayout(links);
    // The way on comes before the way back.
    setTabOrder(m_form->lastField(), m_create);
    setTabOrder(m_create, m_back);
    setTabOrder(m_back, restore);
}

void CreateSafePage::start()
{
    m_form->reset();
    m_offer->setText(m_core.knownSafes().entries().isEmpty()
                         ? tr("You have not Safe yet\nCreate one?")
                         : tr("Create\nanother one?"));
}

void CreateSafePage::takeFocus()
{
    m_form->takeFocus();
}

void CreateSafePage::clearSecrets()
{
    m_form->clearSecrets();
}

void CreateSafePage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT backRequested();
        return;
    }
    QWidget::keyPressEvent(event);
}
