#include "LanguagePage.h"

#include "PMTranslator.h"

#include <QBoxLayout>
#include <QListWidget>

#include <utility>

namespace {

const int listPadding = 8;

} // namespace

LanguagePage::LanguagePage(const PMTranslator &translator, const QString &current,
                           std::function<bool(const QString &)> choose, QWidget *parent)
    : WizardPage(parent)
    , m_choose(std::move(choose))
    , m_current(current.isEmpty() ? translator.availableLanguages().first() : current)
    , m_list(new QListWidget(this))
{
    m_list->setObjectName(QStringLiteral("languageList"));
    m_list->setAccessibleName(tr("Language"));
    const QStringList languages = translator.availableLanguages();
    for (const QString &language : languages) {
        auto *item = new QListWidgetItem(translator.displayName(language), m_list);
        item->setData(Qt::UserRole, language);
        if (language == m_current)
            m_list->setCurrentItem(item);
    }
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_list);
    column->addStretch();
    // As high as its rows, up to where it scrolls.
    m_list->ensurePolished();
    const int row = m_list->sizeHintForRow(0);
    m_list->setMaximumHeight(languages.size() * row + 2 * listPadding);
    connect(m_list, &QListWidget::itemClicked, this, &LanguagePage::onChosen);
    connect(m_list, &QListWidget::currentItemChanged, this, &LanguagePage::onChosen);
}

void LanguagePage::takeFocus()
{
    m_list->setFocus();
}

void LanguagePage::onChosen()
{
    const QListWidgetItem *item = m_list->currentItem();
    const QString language = item ? item->data(Qt::UserRole).toString() : QString();
    if (language.isEmpty() || language == m_current)
        return;
    if (m_choose(language))
        m_current = language;
}
