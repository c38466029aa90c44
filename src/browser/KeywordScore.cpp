#include "KeywordScore.h"

#include <algorithm>

namespace {

bool anyContains(const QStringList &texts, const QString &keyword)
{
    return std::any_of(texts.begin(), texts.end(), [&](const QString &text) {
        return text.contains(keyword, Qt::CaseInsensitive);
    });
}

bool containsOneOf(const QString &text, const QStringList &keywords)
{
    return std::any_of(keywords.begin(), keywords.end(), [&](const QString &keyword) {
        return text.contains(keyword, Qt::CaseInsensitive);
    });
}

} // namespace

float keywordScore(const QStringList &texts, const QStringList &keywords)
{
    const int count = keywords.size();
    for (int i = 0; i < count; ++i) {
        if (anyContains(texts, keywords.at(i)))
            return static_cast<float>(count - i) / static_cast<float>(count);
    }
    return 0.0F;
}

bool containsAny(const QStringList &texts, const QStringList &keywords)
{
    return std::any_of(texts.begin(), texts.end(),
                       [&](const QString &text) { return containsOneOf(text, keywords); });
}

bool containsPair(const QStringList &texts, const QStringList &keywordsA,
                  const QStringList &keywordsB)
{
    return std::any_of(texts.begin(), texts.end(), [&](const QString &text) {
        return containsOneOf(text, keywordsA) && containsOneOf(text, keywordsB);
    });
}
