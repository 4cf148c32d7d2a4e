#pragma once

#include <cstdint>
#include <functional>
#include <stop_token>

namespace tessera {

/// Who looks on while files are copied or converted. Once somebody asks to stop, what comes is of no use.
struct Watch {
    std::stop_token stop;
    /// So many bytes more are done; told from any thread. May be empty.
    std::function<void(std::int64_t more)> progress;
};

} // namespace tessera
