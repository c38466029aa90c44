#pragma once

#include "PMListItem.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

/// The JSON form of one item: values only, so that it is read, written, encrypted and decrypted on
/// any thread, away from the item objects of the GUI thread.
struct PMItemDocument
{
    /// Turns the JSON text of the secret fields into the text kept under "private", and back.
    /// Empty on failure.
    using Encrypt = std::function<std::optional<QString>(const QByteArray &)>;
    using Decrypt = std::function<std::optional<QByteArray>(const QString &)>;

    PMListItem::Type type = PMListItem::UndefinedItem;
    QJsonObject publicFields;
    QJsonObject privateFields;
    QJsonObject unknown; ///< top-level keys that this version does not know

    /// The fields of an item, each in its section, with the keys it brought that name no field.
    static PMItemDocument fromItem(const PMListItem &item);

    /// Sets the item's fields from the document; fields that the document lacks, or holds with a
    /// value of the wrong type, keep their values. False, with the item untouched, when the item is
    /// of another kind.
    bool applyTo(PMListItem &item) const;

    /// A new item with the document's fields, marked as unchanged.
    std::unique_ptr<PMListItem> toItem() const;

    /// The document as UTF-8 JSON. Without `encrypt` the secret fields are written as they are.
    /// Empty when encryption fails.
    std::optional<QByteArray> toJson(const Encrypt &encrypt) const;

    /// Nothing when the text is no item document of a version that this program reads, or its
    /// secret fields do not decrypt.
    static std::optional<PMItemDocument> fromJson(const QByteArray &json, const Decrypt &decrypt);
};

/// Names of the secret fields of a kind; empty for a kind without any.
const QStringList &secretFieldNames(PMListItem::Type type);
