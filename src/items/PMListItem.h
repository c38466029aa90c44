#pragma once

#include "PMProperty.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/// One record of a safe. Every field is a property, so that lists, editors, the form filler and the
/// item document reach it by name. The fields of a kind are those of its class.
class PMListItem : public QObject
{
    Q_OBJECT

public:
    enum Type {
        Login = 0,
        CreditCard = 1,
        BankAccount = 2,
        Identity = 3,
        Passport = 4,
        SSN = 5,
        DriverLicense = 6,
        SecureNote = 7,
        FtpAccount = 8,
        SoftwareLicense = 9,
        Attachment = 10,
        UndefinedItem = 11
    };
    Q_ENUM(Type)

    explicit PMListItem(Type type = UndefinedItem, QObject *parent = nullptr);

    PM_PROPERTY(QString, id, setId)
    PM_PROPERTY(Type, type, setType)
    PM_PROPERTY(QDateTime, created, setCreated)
    PM_PROPERTY(QDateTime, modified, setModified)
    PM_PROPERTY(QDateTime, lastAccessed, setLastAccessed)
    PM_PROPERTY(int, useCount, setUseCount)
    PM_PROPERTY(bool, favorite, setFavorite)
    PM_PROPERTY(bool, deleted, setDeleted)
    PM_PROPERTY(QString, url, setUrl)
    PM_PROPERTY(QString, icon, setIcon)
    PM_PROPERTY(QString, note, setNote)
    PM_PROPERTY(QString, title, setTitle)
    PM_PROPERTY(QString, secondaryText, setSecondaryText)
    PM_PROPERTY(QStringList, refs, setRefs)

public:
    /// Keys of the item's document that name no field; kept so that they are written back.
    struct UnknownKeys
    {
        QJsonObject document;
        QJsonObject publicFields;
        QJsonObject privateFields;
    };
    const UnknownKeys &unknownKeys() const { return m_unknownKeys; }
    void setUnknownKeys(const UnknownKeys &keys) { m_unknownKeys = keys; }

    /// Grows with every change of a field.
    quint64 revision() const { return m_revision; }

    /// Whether a field has changed since the revision that was last marked as saved.
    bool isChanged() const { return m_revision != m_savedRevision; }
    void markSaved(quint64 revision);

    /// Counts as changed although no field is, as an item does whose file has to be written anew.
    void markChanged() { countChange(); }

Q_SIGNALS:
    /// Emitted after each change of a field, behind the field's own signal's cause: for views that
    /// show the item as a whole.
    void timestampChanged();

protected:
    void countChange();

private:
    UnknownKeys m_unknownKeys;
    quint64 m_revision = 0;
    quint64 m_savedRevision = 0;
};
