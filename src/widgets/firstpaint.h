#pragma once

#include <functional>

class QWidget;

namespace tessera {

/// Runs once, as soon as the window has been painted for the first time: what a start need not wait for.
void afterFirstPaint(QWidget& window, std::function<void()> run);

} // namespace tessera
