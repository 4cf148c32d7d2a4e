#pragma once

#include <QStringList>

namespace tessera {

class DefaultsController;

/// The searches that were made last, newest first, each once. They are in the settings.
class LastSearches
{
public:
    explicit LastSearches(DefaultsController& defaults);

    /// At most twelve.
    QStringList all() const;
    void note(const QString& query);
    void forget();

private:
    DefaultsController& m_defaults;
};

} // namespace tessera
