#pragma once

#include "platform/dao/database.h"

#include <QDir>

#include <span>

/// What the tables of a delivered database hold, and its saved queries.
namespace seeds
{

struct Query {
    const char *name, *select;
};
std::span<const Query> queries();

/// Fills the tables from the data folder. Throws std::runtime_error or dao::Error.
void fill(dao::Database &base, const QDir &data);

} // namespace seeds
