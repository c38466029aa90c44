#include "CountryField.h"

#include "CountryNames.h"
#include "PMCountryTable.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCollator>
#include <QCompleter>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

const int rowsShown = 10;
const int searchRole = Qt::UserRole + 1;
const int popupWidth = 280;

/// Offers countries with their codes and puts in what the row stands for.
class CountryCompleter : public QCompleter
{
public:
    using QCompleter::QCompleter;

    QString pathFromIndex(const QModelIndex &index) const override
    {
        return index.data(Qt::UserRole).toString();
    }
};

QStandardItemModel *makeModel(CountryField::Content content, QObject *parent)
{
    auto *model = new QStandardItemModel(parent);
    const bool isName = content == CountryField::Names;
    QVector<QStandardItem *> rows;
    for (const PMCountryTable::Country &country : PMCountryTable::instance().countries()) {
        const QString name = CountryNames::shown(country.name);
        //: a country and its dialling code
        auto *row =
            new QStandardItem(isName ? name : CountryField::tr("%1  +%2").arg(name, country.code));
        row->setData(isName ? name : QLatin1Char('+') + country.code, Qt::UserRole);
        // Found by its English name in every language.
        row->setData(row->text() + QLatin1Char('\n') + country.name, searchRole);
        rows.append(row);
    }
    QCollator collator;
    std::sort(rows.begin(), rows.end(), [&](const QStandardItem *a, const QStandardItem *b) {
        return collator.compare(a->text(), b->text()) < 0;
    });
    for (QStandardItem *row : qAsConst(rows))
        model->appendRow(row);
    return model;
}

} // namespace

CountryField::CountryField(Content content, const Theme &theme, QWidget *parent)
    : TextField(parent)
    , m_content(content)
    , m_completer(new CountryCompleter(this))
{
    m_completer->setModel(makeModel(content, m_completer));
    m_completer->setCompletionRole(searchRole);
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setMaxVisibleItems(rowsShown);
    m_completer->popup()->setObjectName(QStringLiteral("countryList"));
    m_completer->popup()->setMinimumWidth(Style::scaled(popupWidth));
    // The delegate of completers does not take the style sheet's measures.
    m_completer->popup()->setItemDelegate(new QStyledItemDelegate(m_completer));
    setCompleter(m_completer);
    QAction *all =
        addAction(theme.icon(QStringLiteral("chevron-down"), Palette::Muted), TrailingPosition);
    all->setText(tr("Show all countries"));
    all->setToolTip(tr("Show all countries (Alt+Down)"));
    connect(all, &QAction::triggered, this, &CountryField::showAll);
}

QString CountryField::code() const
{
    QString typed = text().trimmed();
    if (typed.startsWith(QLatin1Char('+')))
        typed.remove(0, 1);
    // It parts code and number where they are stored.
    return typed.remove(QLatin1Char(';')).trimmed();
}

void CountryField::setCode(const QString &code)
{
    setText(code.isEmpty() ? QString() : QLatin1Char('+') + code);
}

void CountryField::showAll()
{
    setFocus();
    m_completer->setCompletionPrefix({});
    m_completer->complete();
    const QModelIndexList here = m_completer->completionModel()->match(
        m_completer->completionModel()->index(0, 0), Qt::UserRole, text(), 1, Qt::MatchExactly);
    if (!here.isEmpty() && !text().isEmpty())
        m_completer->popup()->scrollTo(here.first(), QAbstractItemView::PositionAtCenter);
}

void CountryField::replaceName()
{
    const auto country = PMCountryTable::instance().find(CountryNames::stored(text()).trimmed());
    if (m_content == Codes && country)
        setCode(country->code);
}

void CountryField::keyPressEvent(QKeyEvent *event)
{
    const bool opens = event->key() == Qt::Key_F4 ||
                       (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier);
    if (opens)
        showAll();
    else
        TextField::keyPressEvent(event);
}

void CountryField::focusOutEvent(QFocusEvent *event)
{
    TextField::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        replaceName();
}
