#include "bios/biospopup.h"

#include "bios/biosentry.h"
#include "launch/growingitems.h"
#include "platform/defaultscontroller.h"

namespace tessera {

PopupState BiosPopup::selected() const
{
    return storedState(m_defaults, keys::Biostype, growingBiosSets);
}

QString BiosPopup::text() const
{
    const PopupState now = selected();
    return now.index == 0 ? biosSets.front().shown() : now.title;
}

void BiosPopup::select(const QString& title)
{
    const int position = title == defaultBios ? 0 : positionOf(m_defaults, growingBiosSets, title);
    m_defaults.setIndex(keys::Biostype, position >= 0 ? position : selected().index);
}

void BiosPopup::learn(const QStringList& titles)
{
    keepTitles(m_defaults, growingBiosSets, titles);
}

bool BiosPopup::isChangedBy(const QString& setting)
{
    return setting.isEmpty() || setting == keys::Biostype.name || setting == keys::LearntBiosTitles.name;
}

} // namespace tessera
