#pragma once

#include <QString>

#include <memory>

struct psl_ctx_st;

/// Under which names anybody can have one of their own ("com", "co.uk", "github.io"): what tells
/// two owners apart. New ones appear every month, and a name missing here makes one site of many.
class PublicSuffixes
{
public:
    /// The list that the program brings along, read on first use. May be called from any thread.
    static const PublicSuffixes &shipped();

    /// The list in a resource; with a line in the log the library's own, which is older, when it
    /// cannot be read.
    explicit PublicSuffixes(const QString &resource);

    /// The part of a host name, in lower case and its ASCII form, that one owner registered; empty
    /// for a name that is a public suffix itself.
    QString registrableDomain(const QString &host) const;

private:
    struct Free
    {
        void operator()(psl_ctx_st *list) const;
    };

    std::unique_ptr<psl_ctx_st, Free> m_list;
};
