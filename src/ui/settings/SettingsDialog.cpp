#include "SettingsDialog.h"

#include "ProgramShortcuts.h"
#include "SettingsTable.h"
#include "UiSettings.h"
#include "dialogs/FileChooser.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/TextField.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QScrollArea>
#include <QShortcut>

namespace {

const QSize usualSize(620, 520);
const QSize smallestSize(520, 400);
const int pagesWidth = 144;

QString chooseFolderFrom(QWidget *parent, const QString &start)
{
    return askForFolder(parent, {}, start);
}

} // namespace

SettingsDialog::SettingsDialog(const QVector<Setting> &settings, UiSettings &uiSettings,
                               const Theme &theme, QWidget *parent, FolderChooser chooseFolder)
    : FramedDialog(tr("Settings"), theme, parent)
    , m_uiSettings(uiSettings)
    , m_theme(theme)
{
    setObjectName(QStringLiteral("SettingsDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumSize(Style::scaled(smallestSize.width()), Style::scaled(smallestSize.height()));
    resize(Style::scaled(usualSize.width()), Style::scaled(usualSize.height()));
    makeSearch();
    makePages();
    makeRows(settings, {theme, chooseFolder ? std::move(chooseFolder) : chooseFolderFrom,
                        [this](const char *id) { return takenKeys(id); }});
    layOut();
    updateEditable();
    m_pages->setCurrentRow(qBound(0, uiSettings.tabIndex(objectName()), m_pages->count() - 1));
    showRows();
    uiSettings.restoreGeometry(*this);
    m_pages->setFocus();
    connect(&theme, &Theme::changed, this, &SettingsDialog::showPage);
}

SettingsDialog::~SettingsDialog()
{
    m_uiSettings.setTabIndex(objectName(), m_pages->currentRow());
    m_uiSettings.saveGeometry(*this);
}

void SettingsDialog::makeSearch()
{
    m_search = new TextField(this);
    m_search->setObjectName(QStringLiteral("settingsSearch"));
    m_search->setPlaceholderText(tr("Search settings"));
    m_search->setAccessibleName(tr("Search settings"));
    m_search->setClearButtonEnabled(false);
    m_search->addAction(m_theme.icon(QStringLiteral("search"), Palette::Muted),
                        QLineEdit::LeadingPosition);
    connect(m_search, &QLineEdit::textChanged, this, &SettingsDialog::showRows);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_search,
            QOverload<>::of(&QWidget::setFocus));
}

void SettingsDialog::makePages()
{
    m_pages = new QListWidget(this);
    m_pages->setObjectName(QStringLiteral("settingsPages"));
    m_pages->setAccessibleName(tr("Pages"));
    m_pages->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pages->setIconSize({Style::iconSize, Style::iconSize});
    for (int page = 0; page < Setting::PageCount; ++page)
        m_pages->addItem(SettingsTable::pageName(static_cast<Setting::Page>(page)));
    int width = Style::scaled(pagesWidth);
    for (int page = 0; page < m_pages->count(); ++page)
        width = qMax(width, m_pages->fontMetrics().horizontalAdvance(m_pages->item(page)->text()) +
                                Style::iconSize + 48);
    m_pages->setFixedWidth(width);
    connect(m_pages, &QListWidget::currentRowChanged, this, &SettingsDialog::showPage);
}

void SettingsDialog::makeRows(const QVector<Setting> &settings, const SettingRow::Help &help)
{
    m_body = new QWidget(this);
    m_body->setObjectName(QStringLiteral("settingsBody"));
    auto *column = new QVBoxLayout(m_body);
    column->setContentsMargins(Style::margin, 0, Style::margin, Style::margin);
    column->setSpacing(0);
    for (const Setting &setting : settings) {
        if (setting.page >= m_headings.size()) {
            QLabel *heading = makeLabel(SettingsTable::pageName(setting.page), "heading", m_body);
            heading->setContentsMargins(0, Style::gap, 0, 4);
            m_headings.append(heading);
            column->addWidget(heading);
        }
        auto *row = new SettingRow(setting, help, m_body);
        connect(row, &SettingRow::applied, this, &SettingsDialog::updateEditable);
        m_rows.append(row);
        column->addWidget(row);
        auto *line = new QFrame(m_body);
        line->setObjectName(QStringLiteral("cardLine"));
        m_lines.append(line);
        column->addWidget(line);
    }
    m_nothing = makeLabel(tr("No setting matches the search."), "muted", m_body);
    column->addWidget(m_nothing);
    column->addStretch();
}

void SettingsDialog::layOut()
{
    m_scroll = makeScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("settingsScroll"));
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(m_body);
    auto *search = new QHBoxLayout;
    search->setContentsMargins(Style::margin, 0, Style::margin, 0);
    search->addWidget(m_search);
    auto *divider = new QFrame(this);
    divider->setObjectName(QStringLiteral("dividingLine"));
    divider->setFixedWidth(1);
    auto *columns = new QHBoxLayout;
    columns->setSpacing(0);
    columns->addWidget(m_pages);
    columns->addWidget(divider);
    columns->addWidget(m_scroll, 1);
    body().setContentsMargins(0, Style::spacing, 0, 0);
    body().addLayout(search);
    body().addLayout(columns, 1);
    QWidget::setTabOrder(m_search, m_pages);
}

void SettingsDialog::showPage()
{
    for (int page = 0; page < m_pages->count(); ++page) {
        const bool current = page == m_pages->currentRow();
        m_pages->item(page)->setIcon(
            m_theme.icon(SettingsTable::pageIcon(static_cast<Setting::Page>(page)),
                         current ? Palette::Accent : Palette::Text));
    }
    // To choose a page is to be done with the search.
    if (m_search->text().isEmpty())
        showRows();
    else
        m_search->clear();
}

void SettingsDialog::showRows()
{
    const QStringList words = m_search->text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVector<bool> pageShown(Setting::PageCount, false);
    for (int i = 0; i < m_rows.size(); ++i) {
        const Setting::Page page = m_rows.at(i)->setting().page;
        const bool shown =
            words.isEmpty() ? page == m_pages->currentRow() : m_rows.at(i)->matches(words);
        m_rows.at(i)->setVisible(shown);
        m_lines.at(i)->setVisible(shown);
        pageShown[page] = pageShown.at(page) || shown;
    }
    for (int page = 0; page < m_headings.size(); ++page)
        m_headings.at(page)->setVisible(!words.isEmpty() && pageShown.at(page));
    m_nothing->setVisible(!pageShown.contains(true));
    m_scroll->ensureVisible(0, 0);
}

void SettingsDialog::updateEditable()
{
    for (SettingRow *row : qAsConst(m_rows)) {
        const char *needed = row->setting().neededSwitch;
        row->setEditable(!needed || this->row(needed)->setting().value().toBool());
    }
}

const SettingRow *SettingsDialog::row(const char *id) const
{
    for (const SettingRow *row : m_rows) {
        if (qstrcmp(row->setting().id, id) == 0)
            return row;
    }
    return nullptr;
}

QVector<TakenKeys> SettingsDialog::takenKeys(const char *id) const
{
    QVector<TakenKeys> taken = programShortcuts(parentWidget());
    for (const SettingRow *row : m_rows) {
        const Setting &other = row->setting();
        if (other.editor == Setting::Hotkey && qstrcmp(other.id, id) != 0)
            taken.append({QKeySequence(other.value().toString(), QKeySequence::PortableText),
                          other.label.chopped(other.label.endsWith(QLatin1Char(':')) ? 1 : 0)});
    }
    return taken;
}

void SettingsDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !m_search->text().isEmpty()) {
        m_search->clear();
        return;
    }
    FramedDialog::keyPressEvent(event);
}
