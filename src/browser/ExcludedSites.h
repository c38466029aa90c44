#pragma once

#include <QString>
#include <QStringList>

/// The sites whose logins the user never wants to be asked about, kept in a file that is only the
/// user's to read. One that cannot be read counts as empty and is replaced by the next change.
class ExcludedSites
{
public:
    /// @param filePath a JSON list of sites
    explicit ExcludedSites(const QString &filePath);

    /// Whether the address belongs to a site in the list. Any text may be asked for.
    bool contains(const QString &address) const;
    /// False when the address belongs to no site or the file cannot be written; then nothing is
    /// changed.
    bool add(const QString &address);
    bool remove(const QString &site);

    /// In the order of the alphabet.
    const QStringList &sites() const { return m_sites; }

private:
    bool store(const QStringList &sites);

    QString m_filePath;
    QStringList m_sites;
};
