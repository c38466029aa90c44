#pragma once

#include <QString>

#include <optional>

/// The address of a web page, reduced to what decides which site it belongs to.
class SiteAddress
{
public:
    /// The address as it stands when it begins with "http://" or "https://", else with "http://" in
    /// front.
    static QString withScheme(const QString &address);

    /// None for anything that is not the address of a page on a named host over http or https, and
    /// for an address that a browser may read differently.
    static std::optional<SiteAddress> parse(const QString &address);

    bool isSecure() const { return m_isSecure; }

    /// Host in lower case, international names in their ASCII form, without a final dot.
    QString host() const { return m_host; }

    /// The part of the host that one owner registered ("bank.co.uk"). Empty for IP addresses, local
    /// names and hosts that are themselves a public suffix.
    QString registrableDomain() const { return m_registrableDomain; }

    /// The same for all addresses of one site, and for no other.
    QString site() const;

    /// Whether both belong to one owner: the same registrable domain; where there is none, the same
    /// host and port.
    bool isSameSite(const SiteAddress &other) const;

private:
    SiteAddress() = default;

    bool m_isSecure = false;
    int m_port = 0;
    QString m_host;
    QString m_registrableDomain;
};

/// Whether a login saved for one address may be filled into a page at the other: the same site, and
/// never a plain page for a login saved with https. Either may be any text.
bool mayFillLogin(const SiteAddress &login, const SiteAddress &page);
bool mayFillLogin(const QString &loginAddress, const QString &pageAddress);
