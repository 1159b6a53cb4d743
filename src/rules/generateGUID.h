// Globally unique texts for records that take part in no number range.
#pragma once

#include <QString>

namespace marklink {

/// A new GUID in braces, upper case: "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}", 38 characters.
QString generateGUID();

}  // namespace marklink
