#pragma once

#include <QtGlobal>

/// What a field of a page asks for.
enum class FieldKind {
    Unknown,
    /// Nothing of ours belongs there, whatever else speaks for it: a one-time code, a search.
    Never,
    /// Known, and no item has it: a fax, a quantity.
    Other,
    /// Of those, what tells money where to go.
    BankAccount,

    UserName,
    Password,
    /// A password that is being chosen.
    NewPassword,

    CardFirstName,
    CardLastName,
    CardHolder,
    CardNumber,
    CardCode,
    CardMonth,
    CardYear,
    CardExpiry,
    CardType,

    FirstName,
    LastName,
    MiddleName,
    FullName,
    Country,
    State,
    City,
    AddressLine1,
    AddressLine2,
    HouseNumber,
    PostalCode,
    Email,
    Phone,
    /// The international dialling code alone.
    PhoneCode,
    /// The number without its dialling code.
    PhoneNumber,
    /// Its parts: "(212) 555-0123" in three fields.
    PhoneArea,
    PhonePrefix,
    PhoneLine,
    BirthDate,
    BirthDay,
    BirthMonth,
    BirthYear,
    Gender,
    Company,
    JobTitle,
    Website,

    // Words of an address that are used when nothing plainer stands in it.
    PerhapsCity,
    PerhapsState,
    PerhapsLine2,
    PerhapsPostalCode,

    // Words that need their surroundings to mean something. The reader hands none of them out.
    CurrentPassword,
    RepeatedPassword,
    SomeName,
    SomeNumber,
    SomeCode,
    SomeDay,
    SomeMonth,
    SomeYear,
    SomeDate
};

/// A whole date or a part of one, of a birth, of a card or of something yet unknown.
inline bool isDateKind(FieldKind kind)
{
    return (kind >= FieldKind::CardMonth && kind <= FieldKind::CardExpiry) ||
           (kind >= FieldKind::BirthDate && kind <= FieldKind::BirthYear) ||
           kind >= FieldKind::SomeDay;
}

inline bool isLoginKind(FieldKind kind)
{
    return kind == FieldKind::UserName || kind == FieldKind::Password;
}

inline bool isCardKind(FieldKind kind)
{
    return kind >= FieldKind::CardFirstName && kind <= FieldKind::CardType;
}

inline bool isIdentityKind(FieldKind kind)
{
    return kind >= FieldKind::FirstName && kind <= FieldKind::Website;
}

inline bool isPerhapsKind(FieldKind kind)
{
    return kind >= FieldKind::PerhapsCity && kind <= FieldKind::PerhapsPostalCode;
}

inline bool isVagueKind(FieldKind kind)
{
    return kind >= FieldKind::CurrentPassword;
}

inline uint qHash(FieldKind kind, uint seed = 0)
{
    return uint(kind) ^ seed;
}
