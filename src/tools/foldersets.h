#pragma once

#include "tools/nameset.h"

#include <QString>

#include <string_view>

namespace tessera {

/// Which sets a folder holds: "name.zip", or anything of that very name. Tens of thousands are asked for, so
/// the folder is read once; what its names cannot tell is asked of the file system, with the same answers.
class FolderSets
{
public:
    static FolderSets read(const QString& folder);

    bool holds(std::string_view setName) const;

    /// For many: what a set is looked up by; none where its name does not tell.
    static PackedName keyOf(std::string_view setName);
    bool holds(std::string_view setName, const PackedName& key) const;
    /// holds() will soon be asked for this one.
    void expect(const PackedName& key) const { m_names.expect(key); }

private:
    explicit FolderSets(QString folder);
    bool ask(std::string_view setName) const;

    QString m_folder;
    bool m_canTell = false;
    NameSet m_names;
};

} // namespace tessera
