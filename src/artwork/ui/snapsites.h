#pragma once

#include "widgets/chosensite.h"

namespace tessera {

class PicturesPage;

/// Where pictures are fetched from.
class SnapSites : public ChosenSite
{
    Q_OBJECT

public:
    explicit SnapSites(DefaultsController& defaults, QObject* parent = nullptr);

    /// Its controls on sites follow this from now on.
    void setPage(PicturesPage& page);

public Q_SLOTS:
    /// Takes the templates of the chosen site.
    void snapdownsiteAction() { takeTemplates(); }
};

} // namespace tessera
