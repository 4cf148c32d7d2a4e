#include "artwork/ui/snapsites.h"

#include "artwork/picturesites.h"
#include "artwork/ui/picturespage.h"

namespace tessera {

SnapSites::SnapSites(DefaultsController& defaults, QObject* parent)
    : ChosenSite(pictureSiteTable, defaults, parent)
{
}

void SnapSites::setPage(PicturesPage& page)
{
    setFields(*page.hostField, page.templateFields());
}

} // namespace tessera
