#include "device/RemoteDevice.h"

namespace orrery {

using namespace record;

TABLE(kRemoteChannel, CFG_REMOTE_CHANNEL_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(bEnable, "Enable", Bool),
          FIELD(szDevice, "Device", Text),
          FIELD(nChannel, "Channel", Int),
      });

} // namespace orrery
