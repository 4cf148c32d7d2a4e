#pragma once

#include "core/message.h"

namespace tessera {

/// The message that says why something could not be done.
using Failure = Message;

} // namespace tessera
