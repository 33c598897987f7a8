#include "device/GeneralSwitch.h"

namespace orrery {

using namespace record;

TABLE(kEnable, CFG_ENABLE_INFO,
      {
          FIELD(bEnable, "Enable", Bool).Always(),
      });

} // namespace orrery
