#include "CreateSafePage.h"

#include "CreateSafeForm.h"
#include "GPMAppCore.h"
#include "cloud/CloudOffer.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"

#include <QBoxLayout>
#include <QDir>
#include <QKeyEvent>
#include <QScrollArea>

namespace {

const int columnWidth = 316;

} // namespace

CreateSafePage::CreateSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_core(core)
    , m_cloudOffer(new CloudOffer(core.cloudFolders(), theme, CloudOffer::Dark, this))
    , m_offer(makeLabel({}, "muted", this))
    , m_form(new CreateSafeForm(core, theme, CreateSafeForm::Dark, this))
    , m_back(makeButton(tr("Back"), "plain", this))
    , m_create(makeButton(tr("Create"), "primary", this))
    , m_where(new ElidedLabel("muted", this))
    , m_choose(makeButton(tr("Choose…"), "link", this))
{
    setObjectName(QStringLiteral("createSafePage"));
    m_offer->setObjectName(QStringLiteral("createOffer"));
    m_back->setObjectName(QStringLiteral("backButton"));
    m_create->setObjectName(QStringLiteral("createButton"));
    m_where->setObjectName(QStringLiteral("newSafeFolder"));
    m_choose->setObjectName(QStringLiteral("chooseFolderButton"));
    layOut(theme);
    setFolderChoice({});
    connect(m_form, &CreateSafeForm::changed, this, [this] {
        m_create->setEnabled(m_form->canCreate());
        showFolder();
    });
    connect(m_choose, &QPushButton::clicked, this, &CreateSafePage::chooseFolder);
    connect(m_form, &CreateSafeForm::submitted, m_form, &CreateSafeForm::create);
    connect(m_create, &QPushButton::clicked, m_form, &CreateSafeForm::create);
    connect(m_back, &QPushButton::clicked, this, &CreateSafePage::backRequested);
    connect(m_cloudOffer, &CloudOffer::importRequested, this,
            &CreateSafePage::cloudImportRequested);
    m_create->setEnabled(false);
}

void CreateSafePage::layOut(const Theme &theme)
{
    auto *column = new QVBoxLayout;
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_cloudOffer);
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
    auto *where = new QHBoxLayout;
    where->setSpacing(Style::spacing);
    where->addWidget(m_where, 1);
    where->addWidget(m_choose);
    column->addLayout(where);
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
    auto *scroll = makeScrollArea(this);
    scroll->setObjectName(QStringLiteral("createSafeScroll"));
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(inside);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, Style::margin, 0, Style::margin);
    all->addWidget(scroll);
    // Who begins on a new computer may have backups of another one.
    auto *restore = makeButton(tr("Restore from a backup…"), "link", this);
    restore->setObjectName(QStringLiteral("restoreFromCreateLink"));
    restore->setIcon(theme.lockIcon(QStringLiteral("archive"), Palette::SidebarText));
    connect(restore, &QPushButton::clicked, this, &CreateSafePage::restoreRequested);
    auto *import = makeButton(tr("Import from an archive…"), "link", this);
    import->setObjectName(QStringLiteral("importFromCreateLink"));
    import->setIcon(theme.lockIcon(QStringLiteral("file-import"), Palette::SidebarText));
    connect(import, &QPushButton::clicked, this, &CreateSafePage::importRequested);
    auto *links = new QHBoxLayout;
    links->setContentsMargins(Style::margin, 0, Style::margin, 0);
    links->addWidget(import);
    links->addStretch();
    links->addWidget(restore);
    all->addLayout(links);
    // The way on comes before the way back.
    setTabOrder(m_form->lastField(), m_choose);
    setTabOrder(m_choose, m_create);
    setTabOrder(m_create, m_back);
    setTabOrder(m_back, import);
    setTabOrder(import, restore);
}

void CreateSafePage::setFolderChoice(const std::function<QString()> &choose)
{
    m_chooseFolder = choose;
    m_where->setVisible(choose != nullptr);
    m_choose->setVisible(choose != nullptr);
    showFolder();
}

void CreateSafePage::chooseFolder()
{
    // Chosen already: the same button leads back.
    if (!m_form->chosenFolder().isEmpty()) {
        m_form->setFolder({});
        return;
    }
    const QString folder = m_chooseFolder();
    if (!folder.isEmpty())
        m_form->setFolder(folder);
}

void CreateSafePage::showFolder()
{
    const bool chosen = !m_form->chosenFolder().isEmpty();
    const QString folder = QDir::toNativeSeparators(m_form->folder());
    m_where->setFullText(chosen ? tr("In %1").arg(folder) : tr("Kept with your other safes"));
    m_where->setToolTip(folder);
    m_choose->setText(chosen ? tr("Usual place") : tr("Choose…"));
    m_choose->setAccessibleName(chosen ? tr("Keep the safe in the usual place")
                                       : tr("Choose the folder of the safe…"));
}

void CreateSafePage::start()
{
    m_form->reset();
    m_cloudOffer->look();
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
