#pragma once

#include <QWidget>

class QHBoxLayout;

namespace tessera {

/// A row of controls over or under a window's content, parted from it by a line.
class Bar : public QWidget
{
    Q_OBJECT

public:
    enum class Place { Top, Foot };

    explicit Bar(Place place, QWidget* parent = nullptr);

    QHBoxLayout* row() const { return m_row; }

private:
    QHBoxLayout* m_row;
};

} // namespace tessera
