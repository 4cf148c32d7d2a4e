#pragma once

#include "widgets/formpage.h"

namespace tessera {

class PathField;

/// A page of the utility window.
class ToolPage : public FormPage
{
    Q_OBJECT

public:
    using FormPage::FormPage;

protected:
    /// A row with a path; field and buttons get these object names.
    PathField* addPath(const QString& label, const QString& fieldName, const QString& name);
};

} // namespace tessera
