#pragma once

#include <QHash>
#include <QPair>
#include <QString>

/// Tries texts against the patterns that a page gives its fields. The page writes them, and some
/// take longer than the sun shines: only plain ones are run, each for a limited number of steps,
/// and only so many a page.
class PatternTests
{
public:
    /// False when the pattern takes other texts than this; true when it takes it, and when there is
    /// no pattern or none that is run to its end.
    bool takes(const QString &pattern, const QString &text);

private:
    QHash<QPair<QString, QString>, bool> m_known;
    int m_left = 40;
};
