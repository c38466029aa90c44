#pragma once

#include "ItemCategory.h"

#include <QDate>
#include <QStringList>
#include <QStringMatcher>
#include <QVector>

/// The words that narrow a search beside plain text, as in "kind:card" and "is:favourite". The
/// English ones are always known; a translation adds its own.
struct SearchTerms
{
    enum State { Favourite, Trash, Weak, Expired, Expiring };

    struct Kind
    {
        QString name; ///< may be of several words; each is found by its beginning
        PMListItem::Type type;
    };
    struct Mark
    {
        QString name;
        State state;
    };
    QVector<Kind> kinds;
    QVector<Mark> marks;
    QStringList kindPrefixes; ///< "kind"
    QStringList markPrefixes; ///< "is"

    static SearchTerms english();
};

/// What was typed into the search, taken apart once for any number of items. All parts have to
/// match.
class ItemQuery
{
public:
    ItemQuery() = default;
    ItemQuery(const QString &text, const SearchTerms &terms);

    bool isEmpty() const { return m_words.isEmpty() && m_kinds.isEmpty() && m_states.isEmpty(); }
    /// Whether it looks for items in the trash, which it then does from every category.
    bool wantsTrash() const { return wants(SearchTerms::Trash); }
    bool wantsWeak() const { return wants(SearchTerms::Weak); }

    /// Whether it cannot find anything that the other one does not find.
    bool isWithin(const ItemQuery &wider) const;

    /// @param searchText the item's itemSearchText()
    /// @param weak whether the item's password is a weak one
    bool matches(const ItemTraits &item, const QString &searchText, bool weak,
                 const QDate &today) const;

private:
    bool takeTerm(const QString &word, const SearchTerms &terms);
    bool wants(SearchTerms::State state) const;

    QStringList m_words;
    QVector<QStringMatcher> m_longWords; ///< of those words that are worth it
    QStringList m_shortWords;
    // Of each term those that it may mean; of one that means nothing none.
    QVector<QVector<PMListItem::Type>> m_kinds;
    QVector<QVector<SearchTerms::State>> m_states;
};
