#pragma once

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tessara {

/// What a started program has for its input, output and errors.
enum class Streams {
  kShared,   ///< this program's own: it works in its place, for the user at the same terminal
  kNothing,  ///< nothing, and no terminal: signals to this program's group are not for it
};

/// The file number by which a started program finds the file that stays open for it.
inline constexpr int kOpenedFile = 3;

/// How a program is started. Beside its streams it has nothing open of this one, and the signals
/// that this one ignores are its own again.
struct Launch {
  /// The whole path of the program, which is looked for nowhere else, and its arguments.
  std::vector<std::string> command;
  Streams streams = Streams::kNothing;
  std::optional<int> input = {};   ///< a file that is its input, in place of nothing
  std::optional<int> opened = {};  ///< a file that stays open for it, as kOpenedFile
  std::optional<std::vector<std::string>> environment = {};  ///< "NAME=value"; else this program's
};

/// Starts a program. Its number, for the caller to wait for. Raises std::system_error where that
/// can't be done.
[[nodiscard]] pid_t StartProcess(const Launch& launch);

/// Waits for its end, without a bound. Its exit status; 128 and the signal's number where one ended
/// it.
int WaitForProcess(pid_t process);

/// Starts a program with nothing for its streams. Nobody waits for it, and it leaves no dead child
/// behind. One that can't be started is silent.
void StartDetached(const std::vector<std::string>& command);

}  // namespace tessara
