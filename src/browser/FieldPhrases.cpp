#include "FieldPhrases.h"

#include "FieldWords.h"
#include "WordSets.h"

#include <QHash>
#include <QStringList>
#include <QVarLengthArray>

#include <algorithm>

namespace {

bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.unicode() < 0x80; });
}

/// Without accents.
QString folded(const QString &text)
{
    if (isPlain(text))
        return text;
    QString plain;
    plain.reserve(text.size());
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    for (const QChar letter : decomposed) {
        if (letter.category() == QChar::Mark_NonSpacing)
            continue;
        if (letter == QChar(0xDF))
            plain += QLatin1String("ss");
        else
            plain += letter;
    }
    return plain;
}

bool isWordBorder(QChar before, QChar at, QChar after)
{
    if (before.isDigit() != at.isDigit())
        return true;
    if (before.isLower() && at.isUpper())
        return true;
    return before.isUpper() && at.isUpper() && after.isLower();
}

/// The words of a text, as parts of one copy of it.
class Words
{
public:
    explicit Words(const QString &text)
        : m_plain(folded(text))
    {
        const QString cased = m_plain;
        m_plain = m_plain.toLower();
        // Lower case may have another length where a letter has no simple one.
        if (m_plain.size() != cased.size())
            m_plain = cased;
        int start = -1;
        for (int i = 0; i < cased.size(); ++i) {
            const QChar at = cased.at(i);
            const bool isLetter = at.isLetterOrNumber();
            const QChar after = i + 1 < cased.size() ? cased.at(i + 1) : QChar();
            if (start >= 0 && (!isLetter || isWordBorder(cased.at(i - 1), at, after))) {
                append(start, i);
                start = -1;
            }
            if (isLetter && start < 0)
                start = i;
        }
        if (start >= 0)
            append(start, cased.size());
    }
    Words(const Words &) = delete;
    Words &operator=(const Words &) = delete;

    int size() const { return m_words.size(); }
    QStringView at(int i) const { return m_words.at(i); }

    /// Whether only a space or the sign of a genitive stands between the word and the next.
    bool isBesideNext(int i) const
    {
        if (i < 0 || i + 1 >= m_words.size())
            return false;
        const QChar *end = m_words.at(i).data() + m_words.at(i).size();
        const QChar *next = m_words.at(i + 1).data();
        return std::all_of(end, next, [](QChar sign) {
            return sign.isSpace() || sign == QLatin1Char('\'') || sign == QChar(0x2019);
        });
    }

    /// Whether a hyphen alone stands between the word and the next.
    bool isTiedToNext(int i) const
    {
        if (i < 0 || i + 1 >= m_words.size())
            return false;
        const QChar *end = m_words.at(i).data() + m_words.at(i).size();
        return m_words.at(i + 1).data() == end + 1 && *end == QLatin1Char('-');
    }

private:
    void append(int from, int to) { m_words.append(QStringView(m_plain).mid(from, to - from)); }

    QString m_plain;
    QVarLengthArray<QStringView, 24> m_words;
};

/// Phrases by their first word, the longest first.
template <typename Kind>
class PhraseBook
{
public:
    struct Phrase
    {
        QStringList words;
        Kind kind;
        int letters;
        bool isWhole;
        QStringList languages;

        bool isIn(const QString &language) const
        {
            return languages.isEmpty() || language.isEmpty() || languages.contains(language) ||
                   languages.contains(language.section(QLatin1Char('-'), 0, 0));
        }
    };

    explicit PhraseBook(const QVector<WordRow<Kind>> &rows)
    {
        for (const WordRow<Kind> &row : rows) {
            const QStringList languages =
                QString::fromLatin1(row.languages).split(QLatin1Char(' '), Qt::SkipEmptyParts);
            const QStringList phrases = QString::fromUtf8(row.phrases).split(QLatin1Char('|'));
            for (const QString &text : phrases) {
                const QStringList words = wordsOf(text);
                const bool isWhole = text.startsWith(QLatin1Char('='));
                if (!words.isEmpty())
                    m_phrases[words.first()].append(
                        {words, row.kind, text.size(), isWhole, languages});
            }
        }
        for (auto phrases = m_phrases.begin(); phrases != m_phrases.end(); ++phrases) {
            std::stable_sort(
                phrases->begin(), phrases->end(),
                [](const Phrase &a, const Phrase &b) { return a.words.size() > b.words.size(); });
            m_byWord.insert(phrases.key(), &*phrases);
        }
    }

    /// The longest phrase that begins at the position; null when none does.
    const Phrase *find(const Words &words, int position, const QString &language) const
    {
        const auto found = m_byWord.constFind(words.at(position));
        if (found == m_byWord.constEnd())
            return nullptr;
        for (const Phrase &phrase : **found) {
            if (phrase.isWhole && phrase.words.size() != words.size())
                continue;
            if (matches(phrase, words, position) && phrase.isIn(language))
                return &phrase;
        }
        return nullptr;
    }

private:
    static bool matches(const Phrase &phrase, const Words &words, int position)
    {
        const int count = phrase.words.size();
        if (position + count > words.size())
            return false;
        for (int i = 1; i < count; ++i) {
            if (words.at(position + i) != phrase.words.at(i))
                return false;
        }
        return true;
    }

    QHash<QString, QVector<Phrase>> m_phrases;
    /// The same, to be asked with parts of a text; its keys and lists are those above.
    QHash<QStringView, const QVector<Phrase> *> m_byWord;
};

} // namespace

QStringList wordsOf(const QString &text)
{
    const Words words(text);
    QStringList list;
    for (int i = 0; i < words.size(); ++i)
        list.append(words.at(i).toString());
    return list;
}

bool TextMeaning::names(FieldKind kind) const
{
    return std::any_of(parts.begin(), parts.end(),
                       [&](const Part &part) { return part.kind == kind; });
}

namespace {

const PhraseBook<FieldKind> &fieldBook()
{
    static const PhraseBook<FieldKind> book(fieldWords());
    return book;
}

bool isIn(const WordSet &set, const Words &words, int i)
{
    return i >= 0 && i < words.size() && set.contains(words.at(i));
}

/// Whether the word says something that the program does not know.
bool isStrange(const Words &words, int i)
{
    if (i < 0 || i >= words.size() || words.at(i).size() < 2 || words.at(i).at(0).isDigit())
        return false;
    return !isIn(harmlessWords(), words, i) && !fieldBook().find(words, i, {});
}

bool isRussianGenitive(QStringView word)
{
    static const QString endings = QString::fromUtf8("аяиы");
    return word.size() > 3 &&
           (endings.contains(word.at(word.size() - 1)) || word.endsWith(QString::fromUtf8("ов")) ||
            word.endsWith(QString::fromUtf8("еи")));
}

/// "Agent's phone", "project name": in English what is meant stands before.
bool isOfStrangerBefore(const Words &words, int from, int count, int known)
{
    int before = from - 1;
    const bool isGenitive = before > 0 && words.at(before) == QLatin1String("s");
    if (isGenitive)
        --before;
    // "IPv4 address", "passenger 1 name".
    while (before > known && words.at(before).at(0).isDigit() && words.isBesideNext(before))
        --before;
    if (!isGenitive && !isIn(englishHeads(), words, from + count - 1))
        return false;
    return before >= known && words.isBesideNext(before) && isStrange(words, before);
}

/// "Name of the project", "nombre de la mascota", "имя ребёнка": elsewhere it stands behind.
bool isOfStrangerBehind(const Words &words, int from, int count)
{
    int behind = from + count;
    if (!words.isBesideNext(behind - 1))
        return false;
    if (words.at(from).at(0).script() == QChar::Script_Cyrillic)
        return isStrange(words, behind) && isRussianGenitive(words.at(behind));
    if (!isIn(genitiveWords(), words, behind))
        return false;
    while (isIn(genitiveWords(), words, behind))
        ++behind;
    return isStrange(words, behind);
}

/// "Land-mark", "PLZ-Suche": what is tied to it is the main word.
bool isTied(const Words &words, int from, int count)
{
    return words.isTiedToNext(from + count - 1) && isStrange(words, from + count);
}

bool isEnglish(const Words &words, int i)
{
    return isIn(englishHeads(), words, i);
}

/// "Country type", "type d'adresse", "тип адреса".
bool isTurned(const Words &words, int from, int count)
{
    if (words.isBesideNext(from + count - 1) && isIn(turningWords(), words, from + count))
        return true;
    int before = from - 1;
    while (words.isBesideNext(before) && isIn(genitiveWords(), words, before))
        --before;
    // In English "type" is also what one shall do: "type first name", "type your zip code".
    static const WordSet possessives("your my");
    const bool isToDo = before == 0 && words.at(0) == QLatin1String("type") &&
                        (from == 1 || isIn(possessives, words, 1));
    if (isToDo)
        return false;
    const bool isGenitive = before < from - 1 || !isEnglish(words, from);
    return isGenitive && words.isBesideNext(before) && isIn(turningWords(), words, before);
}

/// "Last insurance company", "first visit": what is counted or dated is what follows.
bool isOfNext(const Words &words, int from, int count)
{
    static const WordSet orders("first last");
    return count == 1 && isIn(orders, words, from) && words.isBesideNext(from) &&
           isStrange(words, from + 1);
}

/// In code only the last word turns what stands before: "countryType".
bool isTurnedInCode(const Words &words, int from, int count)
{
    return from + count == words.size() - 1 && isIn(turningWords(), words, from + count);
}

bool isOfStranger(const Words &words, int from, const PhraseBook<FieldKind>::Phrase &phrase,
                  int known)
{
    const int count = phrase.words.size();
    if (isOfStrangerBefore(words, from, count, known) || isTurned(words, from, count) ||
        isTied(words, from, count) || isOfNext(words, from, count))
        return true;
    if (phrase.kind == FieldKind::SomeName && words.isBesideNext(from + count - 1) &&
        isStrange(words, from + count) && !isIn(recipientWords(), words, from + count))
        return true;
    // An example names a street: "rue des Lilas".
    return phrase.kind != FieldKind::AddressLine1 && isOfStrangerBehind(words, from, count);
}

} // namespace

TextMeaning meaningOf(const QString &text, TextSort sort, const QString &language)
{
    TextMeaning meaning;
    const Words words(text);
    const bool isProse = sort == TextSort::Prose;
    int known = 0;
    for (int i = 0; i < words.size();) {
        const auto *phrase = fieldBook().find(words, i, language);
        // In "billing address line 3" the longer phrase begins within the first.
        for (int at = i + 1; phrase && at < i + phrase->words.size(); ++at) {
            const auto *inner = fieldBook().find(words, at, language);
            if (!inner || inner->words.size() <= phrase->words.size())
                continue;
            phrase = inner;
            i = at;
        }
        const int count = phrase ? phrase->words.size() : 1;
        for (int at = i; isProse && at < i + count; ++at)
            meaning.isOfRecipient = meaning.isOfRecipient || isIn(recipientWords(), words, at);
        if (phrase) {
            const bool isOfOther =
                isProse ? isOfStranger(words, i, *phrase, known) : isTurnedInCode(words, i, count);
            meaning.parts.append({phrase->kind, i, count, phrase->letters, isOfOther});
            known = i + count;
        }
        i += count;
    }
    return meaning;
}

QString withoutAsides(const QString &text)
{
    if (!text.contains(QLatin1Char('(')))
        return text;
    QString plain;
    int depth = 0;
    for (const QChar letter : text) {
        if (letter == QLatin1Char('('))
            ++depth;
        if (depth == 0)
            plain += letter;
        if (letter == QLatin1Char(')') && depth > 0)
            --depth;
    }
    return plain.trimmed().isEmpty() ? text : plain;
}

bool hasStrangeWords(const QString &text)
{
    const Words words(text);
    for (int i = 0; i < words.size();) {
        if (isStrange(words, i))
            return true;
        const auto *phrase = fieldBook().find(words, i, {});
        i += phrase ? phrase->words.size() : 1;
    }
    return false;
}

CaptionKind captionKindOf(const QString &text)
{
    static const PhraseBook<CaptionKind> book(captionWords());
    const Words words(text);
    CaptionKind kind = CaptionKind::None;
    int longest = 0;
    for (int i = 0; i < words.size(); ++i) {
        const auto *phrase = book.find(words, i, {});
        if (phrase && phrase->words.size() > longest) {
            kind = phrase->kind;
            longest = phrase->words.size();
        }
    }
    return kind;
}
