#include "app/statusline.h"

#include "app/windows/listwindow.h"
#include "app/windows/miniwindow.h"

namespace tessera {

StatusLine::StatusLine(ListWindow& first, QObject* parent)
    : QObject(parent)
    , m_windows{&first}
{
}

void StatusLine::showIn(ListWindow& window)
{
    m_windows << &window;
}

void StatusLine::showAnswersIn(MiniWindow& window)
{
    m_mini = &window;
}

void StatusLine::say(const QString& sentence)
{
    for (ListWindow* window : std::as_const(m_windows)) {
        if (window != nullptr)
            window->showMessage(sentence);
    }
}

void StatusLine::answer(const QString& sentence)
{
    say(sentence);
    if (m_mini != nullptr)
        m_mini->showMessage(sentence);
}

void StatusLine::takeBack(const QString& sentence)
{
    for (ListWindow* window : std::as_const(m_windows)) {
        if (window != nullptr)
            window->takeBack(sentence);
    }
}

} // namespace tessera
