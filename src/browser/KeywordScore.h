#pragma once

#include <QStringList>

/// How strongly the texts speak for a list of keywords, strongest keyword first. All searches are
/// for substrings and ignore case.

/// 1.0 when the first keyword occurs in any text, 1/n less for each later one; 0.0 when none does.
/// A weak keyword in an early text never beats a stronger one in a later text.
float keywordScore(const QStringList &texts, const QStringList &keywords);

/// Whether some text contains some keyword.
bool containsAny(const QStringList &texts, const QStringList &keywords);

/// Whether one and the same text contains a keyword of each list.
bool containsPair(const QStringList &texts, const QStringList &keywordsA,
                  const QStringList &keywordsB);
