#include "bench/resident_memory.h"

#include <QFile>

long long ResidentKilobytes() {
  QFile status("/proc/self/status");
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toLongLong();
  }
  return 0;
}
