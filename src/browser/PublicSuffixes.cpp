#include "PublicSuffixes.h"

#include <QDebug>
#include <QTemporaryFile>

#include <libpsl.h>

namespace {

/// The library reads files alone, and on every system by their name.
psl_ctx_t *read(const QString &resource)
{
    const std::unique_ptr<QTemporaryFile> file(QTemporaryFile::createNativeFile(resource));
    if (!file)
        return nullptr;
    file->close();
    psl_ctx_t *list = psl_load_file(QFile::encodeName(file->fileName()).constData());
    if (psl_suffix_count(list) > 0)
        return list;
    psl_free(list);
    return nullptr;
}

} // namespace

void PublicSuffixes::Free::operator()(psl_ctx_st *list) const
{
    psl_free(list);
}

const PublicSuffixes &PublicSuffixes::shipped()
{
    // The resources of a static library are not found before they are named.
    Q_INIT_RESOURCE(suffixes);
    static const PublicSuffixes suffixes(QStringLiteral(":/suffixes/public_suffix_list.dat"));
    return suffixes;
}

PublicSuffixes::PublicSuffixes(const QString &resource)
    : m_list(read(resource))
{
    if (!m_list)
        qWarning() << "Can't read the list of public suffixes, an older one is used:" << resource;
}

QString PublicSuffixes::registrableDomain(const QString &host) const
{
    const psl_ctx_t *list = m_list ? m_list.get() : psl_builtin();
    return QString::fromLatin1(psl_registrable_domain(list, host.toLatin1().constData()));
}
