#include "adapters/libreoffice/server_sockets.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

#include "adapters/libreoffice/uno_text.h"

namespace tessara {

namespace {

namespace fs = std::filesystem;

/// Before each name; the user's number stands between the two.
constexpr const char* kSocketPrefix = "OSL_PIPE_";
/// Before the number of the profile, by which a server finds another one of the same profile.
constexpr const char* kOfProfile = "SingleOfficeIPC_";

constexpr std::size_t kMd5Bytes = 16;

/// A checksum of the URL's UTF-16 code units, each byte in hexadecimal digits without a leading 0.
std::string NumberOf(const std::string& url) {
  const std::u16string units(url.begin(), url.end());
  std::array<guint8, kMd5Bytes> sum{};
  gsize size = sum.size();
  GChecksum* checksum = g_checksum_new(G_CHECKSUM_MD5);
  g_checksum_update(checksum, reinterpret_cast<const guchar*>(units.data()),
                    static_cast<gssize>(units.size() * sizeof(char16_t)));
  g_checksum_get_digest(checksum, sum.data(), &size);
  g_checksum_free(checksum);
  std::string number;
  for (const guint8 byte : sum) {
    std::array<char, 3> digits{};
    std::snprintf(digits.data(), digits.size(), "%x", byte);
    number += digits.data();
  }
  return number;
}

std::vector<fs::path> FoldersOfSockets(const fs::path& privateFolder) {
  return {"/tmp", "/var/tmp", SocketFolder(privateFolder)};
}

std::string FileOf(const std::string& socket) {
  return kSocketPrefix + std::to_string(getuid()) + "_" + socket;
}

bool IsClosedToOthers(const char* folder) {
  struct stat status {};
  return stat(folder, &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
         (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

bool IsOwnSocket(const fs::path& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISSOCK(status.st_mode) &&
         status.st_uid == geteuid();
}

}  // namespace

fs::path ProfileOf(const fs::path& privateFolder) {
  return privateFolder / "profile";
}

std::string PipeName(const fs::path& privateFolder) {
  return privateFolder.filename().string();
}

fs::path SocketFolder(const fs::path& privateFolder) {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  const bool usable = runtime != nullptr && runtime[0] == '/' && IsClosedToOthers(runtime);
  return usable ? fs::path(runtime) : privateFolder;
}

std::vector<fs::path> SocketsOf(const fs::path& privateFolder) {
  const std::string profile = NumberOf(FileUrl(ProfileOf(privateFolder).string()));
  std::vector<fs::path> sockets;
  for (const fs::path& folder : FoldersOfSockets(privateFolder)) {
    sockets.push_back(folder / FileOf(PipeName(privateFolder)));
    sockets.push_back(folder / FileOf(kOfProfile + profile));
  }
  return sockets;
}

bool OwnsPipe(const fs::path& privateFolder) {
  for (const fs::path& folder : FoldersOfSockets(privateFolder)) {
    if (IsOwnSocket(folder / FileOf(PipeName(privateFolder)))) return true;
  }
  return false;
}

}  // namespace tessara
