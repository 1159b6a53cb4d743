// The one program context of the process.
#include "Kontext.h"

namespace marklink {

Programmkontext Kontext;

}  // namespace marklink
