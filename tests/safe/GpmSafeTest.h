#pragma once

#include "PMItemDocument.h"
#include "PMItemFactory.h"
#include "PMLogin.h"
#include "SafeCrypto.h"
#include "SafeTesting.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

const QString loginId = "00000000-0000-0001-0000-000000001234"_s;

inline QJsonObject samplePlain()
{
    return QJsonDocument::fromJson(contentOf(QStringLiteral(TEST_DATA_DIR "/safe-plain.json")))
        .object();
}

inline std::unique_ptr<PMLogin> makeLogin(const QString &title, const QString &password)
{
    auto login = std::make_unique<PMLogin>();
    login->setTitle(title);
    login->setPassword(password);
    return login;
}

/// JSON written with single quotes.
inline QByteArray json(const char *text)
{
    return QByteArray(text).replace('\'', '"');
}

inline QString itemText(const QByteArray &password, const QByteArray &json)
{
    QString text;
    encryptString(password, json, text);
    return text;
}

/// Tests with a folder for a safe.
class GpmSafeTest : public QObject
{
protected:
    void start()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_folder = m_temporary->path();
    }

    QString content(const QString &name) const { return m_folder + "/content/"_s + name; }

    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_folder;
};
