#pragma once

#include <QSet>
#include <QStringList>
#include <QStringView>

/// Words in lower case and without accents, to be asked with parts of a text.
class WordSet
{
public:
    explicit WordSet(const char *words);
    WordSet(const WordSet &) = delete;
    WordSet &operator=(const WordSet &) = delete;

    bool contains(QStringView word) const
    {
        return !word.isEmpty() && (m_initials & initialOf(word)) != 0 && m_views.contains(word);
    }

private:
    /// One bit for some letters: most words are told by it.
    static quint64 initialOf(QStringView word) { return quint64(1) << (word.at(0).unicode() & 63); }

    QStringList m_words;
    QSet<QStringView> m_views;
    quint64 m_initials = 0;
};

/// What may stand beside the name of a field without changing whose it is: "your", "billing".
const WordSet &harmlessWords();

/// What an English field is in the end, whatever stands before: a name, an address, a number.
const WordSet &englishHeads();

/// What makes something else of the name of a field beside it: the country's "type", the e-mail's
/// "format".
const WordSet &turningWords();

/// What ties a noun to what follows: "of the", "de la", "des".
const WordSet &genitiveWords();

/// Whose part of a form is not the user's, when its heading has one of these.
const WordSet &strangerWords();

/// What stands above the part of a form that asks of the user.
const WordSet &headingWords();

/// What says that it is the user who is asked.
const WordSet &ownWords();

/// Who receives something: the user, where nobody else is asked for.
const WordSet &recipientWords();
