#pragma once

#include <QLineEdit>

#include <functional>

class QCompleter;
class QStandardItemModel;

namespace tessera {

/// An option of the user's emulator: "-cheat", and what the emulator says of it.
struct KnownOption {
    QString option;
    QString description;
};

/// What the emulator understands. Without `lists` it was not asked, and nothing is said of any option. That
/// is no list of names: an emulator takes the opposite of what it lists, too, and names may run into their
/// descriptions.
struct KnownOptions {
    QList<KnownOption> options;
    std::function<bool(QStringView option)> lists;
};

/// A field for a favourite's options; the word that is being typed is completed.
class OptionField : public QLineEdit
{
    Q_OBJECT

public:
    explicit OptionField(QWidget* parent = nullptr);

    void setKnownOptions(const QList<KnownOption>& options);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void propose();
    void takeOption(const QString& option);

    QCompleter* m_completer;
    QStandardItemModel* m_options;
};

} // namespace tessera
