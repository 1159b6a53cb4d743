// Globally unique texts.
#include "generateGUID.h"

#include <QUuid>

namespace marklink {

QString generateGUID() { return QUuid::createUuid().toString(QUuid::WithBraces).toUpper(); }

}  // namespace marklink
