#include "widgets/firstpaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <utility>

namespace tessera {

namespace {

// What a window that was just shown is told (its place, that it is active) comes first.
constexpr std::chrono::milliseconds settling{20};

class FirstPaint : public QObject
{
public:
    FirstPaint(QWidget& window, std::function<void()> run)
        : QObject(&window)
        , m_run(std::move(run))
    {
        window.installEventFilter(this);
    }

    // The window's own paint event is the first of a pass that paints its children too; the timer comes
    // after.
    bool eventFilter(QObject* window, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            QTimer::singleShot(settling, this, [this] {
                deleteLater();
                m_run();
            });
        }
        return false;
    }

private:
    std::function<void()> m_run;
};

} // namespace

void afterFirstPaint(QWidget& window, std::function<void()> run)
{
    new FirstPaint(window, std::move(run));
}

} // namespace tessera
