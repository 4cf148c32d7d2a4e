#pragma once

#include <QUrl>
#include <QWidget>

#include <optional>

class QComboBox;
class QLineEdit;

namespace tessera {

class DefaultsController;

/// The favourites' own choice of an information site: a pop-up of addresses, and a field for one that is not
/// in it. It begins with what the preferences say, and is the window's own from then on.
class SiteChoice : public QWidget
{
    Q_OBJECT

public:
    explicit SiteChoice(DefaultsController& defaults, QWidget* parent = nullptr);

    /// The chosen page for a set; nothing where there is none.
    std::optional<QUrl> page(const QString& name) const;
    /// Why the chosen site has no page, in one sentence; empty where it is not for want of a host.
    QString hindrance() const;

    QComboBox* infositePop2;
    QLineEdit* addressField2;

private:
    void showTitles();
    void showField();
    QString siteTemplate() const;

    DefaultsController& m_defaults;
};

} // namespace tessera
