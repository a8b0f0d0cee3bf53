#pragma once

/// Of this process, in kB of 1024 bytes; 0 where the system does not tell.
long long ResidentKilobytes();
