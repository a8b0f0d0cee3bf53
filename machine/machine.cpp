#include "machine/machine.h"

namespace tessara {

Text ProgramFile(const Machine& machine, TextView name) {
  return machine.programFolder + u"/" + Text(name);
}

}  // namespace tessara
