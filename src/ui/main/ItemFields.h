#pragma once

#include "PMListItem.h"

#include <QVector>

class GPMAppSettings;

/// One field of a kind of item. Pages, editors, rules and drafts all follow this description.
struct ItemField
{
    /// How the value is shown and edited.
    enum Form {
        Line,
        Multiline,
        LongText, ///< multi-line, with room for much
        Password, ///< a secret with its strength, and a generator to make one
        Secret,
        SecurityCode,
        Link,
        FillType,
        Date,
        Month, ///< a date of which year and month mean something
        Phone,
        Country,
        Gender,
        CardNumber,
        CardType, ///< follows from the card number
        Number
    };

    /// What the value has to be, beside what its form asks for; see FieldRules.
    enum Rule { AnyText, CardHolder, CardNumberDigits, CardCode, Url, Email };

    enum Option {
        None = 0,
        Required = 1,
        Beside = 2,  ///< stands in one row with the field before it
        Folded = 4,  ///< the editor shows it once it is wanted or filled
        NoCopy = 8,  ///< nobody pastes it anywhere
        OnFace = 16, ///< shown on the picture of the card, not in a row
        Expiry = 32, ///< behind this date the item is no longer valid
    };

    const char *property; ///< name of the item's property
    const char *label;    ///< to be translated, see itemFieldLabel()
    Form form = Line;
    int options = None;
    Rule rule = AnyText;

    bool has(Option option) const { return options & option; }
    /// Whether the value is shown as dots until it is revealed.
    bool isSecret() const { return form == Password || form == Secret || form == SecurityCode; }
    /// Whether the value has lines.
    bool isText() const { return form == Multiline || form == LongText; }
};

/// The fields of a kind in the order in which they are shown. The title, which stands above them,
/// is not among them; the note is the last.
const QVector<ItemField> &itemFields(PMListItem::Type type);

/// The title, which every kind has and no item may lack.
const ItemField &itemTitleField();

QString itemFieldLabel(const ItemField &field);

/// The value as a person reads it; empty when the field holds nothing.
QString itemFieldText(const PMListItem &item, const ItemField &field,
                      const GPMAppSettings &settings);

/// The value as it is pasted elsewhere.
QString itemFieldCopyText(const PMListItem &item, const ItemField &field,
                          const GPMAppSettings &settings);

/// The words for what is done with a login on its page.
QString fillTypeText(int fillType, const GPMAppSettings &settings);

/// "Male", "Female"; empty for none.
QString genderText(int gender);
