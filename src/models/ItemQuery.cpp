#include "ItemQuery.h"

#include "ItemExpiry.h"
#include "SearchText.h"

#include <algorithm>

namespace {

const int longWord = 3; ///< from here on a table of the word's letters finds it faster

bool hasState(const ItemTraits &item, SearchTerms::State state, bool weak, const QDate &today)
{
    switch (state) {
    case SearchTerms::Favourite:
        return item.favorite;
    case SearchTerms::Trash:
        return item.deleted;
    case SearchTerms::Weak:
        return weak;
    case SearchTerms::Expired:
        return item.lastDay.isValid() && isExpired(item.lastDay, today);
    case SearchTerms::Expiring:
        return item.lastDay.isValid() && expiresSoon(item.lastDay, today);
    }
    return false;
}

bool beginsAWord(const QString &name, const QString &beginning)
{
    const QStringList words = foldForSearch(name).split(QLatin1Char(' '));
    return std::any_of(words.begin(), words.end(),
                       [&](const QString &word) { return word.startsWith(beginning); });
}

bool isPrefix(const QStringList &prefixes, const QString &word)
{
    return std::any_of(prefixes.begin(), prefixes.end(),
                       [&](const QString &prefix) { return foldForSearch(prefix) == word; });
}

} // namespace

SearchTerms SearchTerms::english()
{
    const auto text = [](const char *name) { return QString::fromLatin1(name); };
    return {{{text("login"), PMListItem::Login},
             {text("password"), PMListItem::Login},
             {text("credit card"), PMListItem::CreditCard},
             {text("bank account"), PMListItem::BankAccount},
             {text("identity"), PMListItem::Identity},
             {text("passport"), PMListItem::Passport},
             {text("social security"), PMListItem::SSN},
             {text("ssn"), PMListItem::SSN},
             {text("driver licence"), PMListItem::DriverLicense},
             {text("license"), PMListItem::DriverLicense},
             {text("secure note"), PMListItem::SecureNote},
             {text("ftp account"), PMListItem::FtpAccount},
             {text("software licence"), PMListItem::SoftwareLicense},
             {text("license"), PMListItem::SoftwareLicense},
             {text("attachment"), PMListItem::Attachment},
             {text("file"), PMListItem::Attachment}},
            {{text("favourite"), Favourite},
             {text("favorite"), Favourite},
             {text("trash"), Trash},
             {text("weak"), Weak},
             {text("expired"), Expired},
             {text("expiring"), Expiring}},
            {text("kind")},
            {text("is")}};
}

ItemQuery::ItemQuery(const QString &text, const SearchTerms &terms)
{
    const QStringList words = foldForSearch(text.simplified()).split(QLatin1Char(' '));
    for (const QString &word : words) {
        if (!word.isEmpty() && !takeTerm(word, terms))
            m_words.append(word);
    }
    for (const QString &word : qAsConst(m_words)) {
        if (word.size() < longWord)
            m_shortWords.append(word);
        else
            m_longWords.append(QStringMatcher(word));
    }
}

bool ItemQuery::takeTerm(const QString &word, const SearchTerms &terms)
{
    const int colon = word.indexOf(QLatin1Char(':'));
    const QString prefix = word.left(qMax(0, colon));
    const bool isKind = isPrefix(terms.kindPrefixes, prefix);
    const bool isMark = isPrefix(terms.markPrefixes, prefix);
    if (!isKind && !isMark)
        return false;
    const QString value = word.mid(colon + 1);
    // Still being typed.
    if (value.isEmpty())
        return true;
    if (isKind) {
        QVector<PMListItem::Type> kinds;
        for (const SearchTerms::Kind &kind : terms.kinds) {
            if (beginsAWord(kind.name, value))
                kinds.append(kind.type);
        }
        m_kinds.append(kinds);
    } else {
        QVector<SearchTerms::State> states;
        for (const SearchTerms::Mark &mark : terms.marks) {
            if (beginsAWord(mark.name, value))
                states.append(mark.state);
        }
        m_states.append(states);
    }
    return true;
}

bool ItemQuery::wants(SearchTerms::State state) const
{
    return std::any_of(m_states.begin(), m_states.end(),
                       [state](const auto &states) { return states.contains(state); });
}

bool ItemQuery::isWithin(const ItemQuery &wider) const
{
    if (m_kinds != wider.m_kinds || m_states != wider.m_states)
        return false;
    return std::all_of(wider.m_words.begin(), wider.m_words.end(), [this](const QString &word) {
        return std::any_of(m_words.begin(), m_words.end(),
                           [&word](const QString &longer) { return longer.contains(word); });
    });
}

bool ItemQuery::matches(const ItemTraits &item, const QString &searchText, bool weak,
                        const QDate &today) const
{
    for (const QVector<PMListItem::Type> &kinds : m_kinds) {
        if (!kinds.contains(item.type))
            return false;
    }
    for (const QVector<SearchTerms::State> &states : m_states) {
        if (std::none_of(states.begin(), states.end(), [&](SearchTerms::State state) {
                return hasState(item, state, weak, today);
            }))
            return false;
    }
    return std::all_of(m_longWords.begin(), m_longWords.end(),
                       [&](const QStringMatcher &word) { return word.indexIn(searchText) >= 0; }) &&
           std::all_of(m_shortWords.begin(), m_shortWords.end(),
                       [&](const QString &word) { return searchText.contains(word); });
}
