#pragma once

#include <QSslCertificate>
#include <QSslKey>

#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <memory>

/// Certificates that are made for a test and thrown away with it.
namespace TestCertificates {

struct Identity
{
    QSslCertificate certificate;
    QSslKey key;
};

class Authority
{
public:
    Authority()
        : m_key(EVP_EC_gen("P-256"), &EVP_PKEY_free)
        , m_root(make("Authority of the tests", m_key.get(),
                      {"basicConstraints", "critical,CA:TRUE"}, 1))
    {
    }

    QSslCertificate root() const { return read(m_root.get()); }

    /// For a host, which is "DNS:site.example" or "IP:127.0.0.1", valid until that many days from
    /// now.
    Identity issue(const char *host, int days = 1) const
    {
        const Key key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
        const Certificate made = make("site", key.get(), {"subjectAltName", host}, days);
        const Bytes pem(BIO_new(BIO_s_mem()), &BIO_free);
        PEM_write_bio_PrivateKey(pem.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr);
        return {read(made.get()), QSslKey(textOf(pem.get()), QSsl::Ec)};
    }

private:
    using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
    using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;
    using Bytes = std::unique_ptr<BIO, decltype(&BIO_free)>;
    struct Extension
    {
        const char *name;
        const char *value;
    };

    static QByteArray textOf(BIO *bytes)
    {
        char *start = nullptr;
        const long length = BIO_get_mem_data(bytes, &start);
        return QByteArray(start, static_cast<int>(length));
    }

    static QSslCertificate read(X509 *certificate)
    {
        const Bytes pem(BIO_new(BIO_s_mem()), &BIO_free);
        PEM_write_bio_X509(pem.get(), certificate);
        return QSslCertificate(textOf(pem.get()));
    }

    Certificate make(const char *name, EVP_PKEY *key, const Extension &extension, int days) const
    {
        static long serial = 0;
        Certificate made(X509_new(), &X509_free);
        X509_set_version(made.get(), X509_VERSION_3);
        ASN1_INTEGER_set(X509_get_serialNumber(made.get()), ++serial);
        X509_gmtime_adj(X509_getm_notBefore(made.get()), -10L * 24 * 3600);
        X509_gmtime_adj(X509_getm_notAfter(made.get()), days * 24L * 3600);
        X509_NAME_add_entry_by_txt(X509_get_subject_name(made.get()), "CN", MBSTRING_ASC,
                                   reinterpret_cast<const unsigned char *>(name), -1, -1, 0);
        X509_set_issuer_name(made.get(), X509_get_subject_name(m_root ? m_root.get() : made.get()));
        X509_set_pubkey(made.get(), key);
        X509_EXTENSION *more =
            X509V3_EXT_conf_nid(nullptr, nullptr, OBJ_txt2nid(extension.name), extension.value);
        X509_add_ext(made.get(), more, -1);
        X509_EXTENSION_free(more);
        X509_sign(made.get(), m_key.get(), EVP_sha256());
        return made;
    }

    Key m_key;
    Certificate m_root{nullptr, &X509_free};
};

} // namespace TestCertificates
