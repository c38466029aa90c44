#include "SearchWords.h"

#include "ItemCategory.h"
#include "ItemKinds.h"

#include <QCoreApplication>

namespace {

struct SearchWords
{
    Q_DECLARE_TR_FUNCTIONS(SearchWords)
};

} // namespace

SearchTerms searchTerms()
{
    SearchTerms terms = SearchTerms::english();
    const QVector<ItemCategory> categories = ItemCategory::all();
    for (const ItemCategory &category : categories) {
        if (category.kind != ItemCategory::OfType)
            continue;
        terms.kinds.append({itemKindName(category.type), category.type});
        terms.kinds.append({categoryName(category), category.type});
    }
    terms.marks += {{SearchWords::tr("favourite", "behind \"is:\""), SearchTerms::Favourite},
                    {SearchWords::tr("trash", "behind \"is:\""), SearchTerms::Trash},
                    {SearchWords::tr("weak", "behind \"is:\""), SearchTerms::Weak},
                    {SearchWords::tr("expired", "behind \"is:\""), SearchTerms::Expired},
                    {SearchWords::tr("expiring", "behind \"is:\""), SearchTerms::Expiring}};
    terms.kindPrefixes.append(SearchWords::tr("kind", "before \":\" in a search"));
    terms.markPrefixes.append(SearchWords::tr("is", "before \":\" in a search"));
    return terms;
}

QString searchHelp()
{
    return SearchWords::tr(
        "Finds items with all the words in title, user name, address or note.\n"
        "kind:card shows one kind of item.\n"
        "is:favourite, is:weak, is:expiring, is:expired and is:trash show items by their state.",
        "with the words that are translated as parts of a search");
}
