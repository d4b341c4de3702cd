#pragma once

#include <cstdio>

namespace qor {

// `qorgen batch`: JSON Lines. One request per line in, one response per line
// out, in order; one session for all of them. Responses are written as soon as
// no further request is waiting on the input, so a caller that writes one line
// and waits gets its answer at once, while a stream of requests is answered in
// large writes. Blank lines are passed over. A line that cannot be read gets an
// error response and the next line is read as usual. Ends at the end of the input.
class BatchCommand
{
public:
    static int run(std::FILE *in, std::FILE *out);
};

} // namespace qor
