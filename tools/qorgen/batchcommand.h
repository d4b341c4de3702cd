#pragma once

#include <cstdio>

namespace qor {

// `qorgen batch`: JSON Lines. One request per line in, one response per line
// out, in order and flushed at once; one session for all of them. Blank lines
// are passed over. A line that cannot be read gets an error response and the
// next line is read as usual. Ends at the end of the input.
class BatchCommand
{
public:
    static int run(std::FILE *in, std::FILE *out);
};

} // namespace qor
