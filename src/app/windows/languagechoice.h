#pragma once

#include <QComboBox>

namespace tessera {

class DefaultsController;

/// The language of the windows, which takes effect at the next start.
class LanguageChoice : public QComboBox
{
    Q_OBJECT

public:
    explicit LanguageChoice(DefaultsController& defaults, QWidget* parent = nullptr);

private:
    void showStored();
    void store(int position);

    DefaultsController& m_defaults;
};

} // namespace tessera
