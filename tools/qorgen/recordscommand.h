#pragma once

#include <QStringList>

#include <cstdio>

namespace qor {

// `qorgen records write|read [OPTIONS] FILE`: converts JSON Lines of field
// arrays into a data file of fixed-field records and back, so that scripts
// can write and check such files without C++. Exit status: 0 every line
// passed, 1 some lines were faulty (each reported on the error stream), 2 the
// command could not run (bad option, file not opened).
class RecordsCommand
{
public:
    static int run(const QStringList &arguments, std::FILE *in, std::FILE *out, std::FILE *err);
};

} // namespace qor
