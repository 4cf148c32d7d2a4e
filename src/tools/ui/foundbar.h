#pragma once

#include <QWidget>

namespace tessera {

/// How many sets are found and how many are missing, as a bar with both numbers; hidden without any.
class FoundBar : public QWidget
{
    Q_OBJECT

public:
    explicit FoundBar(QWidget* parent = nullptr);

    void setCounts(int found, int missing);
    /// How much of the bar is filled, from 0 to 1.
    double part() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_found = 0;
    int m_missing = 0;
};

} // namespace tessera
