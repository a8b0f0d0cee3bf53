// Shows a desktop notification and ends. A process of its own: whatever the service does, nobody
// waits for it.
// usage: tessara-notify TITLE TEXT

#include <cstdlib>
#include <filesystem>
#include <gio/gio.h>
#include <memory>
#include <string>
#include <unistd.h>

namespace {

constexpr const char* kService = "org.freedesktop.Notifications";
constexpr const char* kObject = "/org/freedesktop/Notifications";
constexpr int kPatienceMs = 10000;
constexpr unsigned kLongestLifeSeconds = 30;
constexpr int kServiceDecidesHowLong = -1;

struct Unref {
  void operator()(GDBusConnection* bus) const { g_object_unref(bus); }
  void operator()(GVariant* value) const { g_variant_unref(value); }
};
using Bus = std::unique_ptr<GDBusConnection, Unref>;
using Value = std::unique_ptr<GVariant, Unref>;

/// Where neither tells of a session's bus, asking for one would start it.
bool SessionHasBus() {
  const char* const runtime = std::getenv("XDG_RUNTIME_DIR");
  std::error_code none;
  return std::getenv("DBUS_SESSION_BUS_ADDRESS") != nullptr ||
         (runtime != nullptr &&
          std::filesystem::exists(std::filesystem::path(runtime) / "bus", none));
}

/// Null where the service does not answer. Takes over the arguments.
Value Call(const Bus& bus, const char* method, GVariant* arguments, const char* answer) {
  return Value(g_dbus_connection_call_sync(bus.get(), kService, kObject, kService, method,
                                           arguments, G_VARIANT_TYPE(answer),
                                           G_DBUS_CALL_FLAGS_NONE, kPatienceMs, nullptr, nullptr));
}

bool TakesMarkup(const Bus& bus) {
  const Value answer = Call(bus, "GetCapabilities", nullptr, "(as)");
  if (answer == nullptr) return false;
  GVariantIter* capabilities = nullptr;
  g_variant_get(answer.get(), "(as)", &capabilities);
  const char* capability = nullptr;
  bool markup = false;
  while (g_variant_iter_next(capabilities, "&s", &capability) != FALSE) {
    markup = markup || std::string(capability) == "body-markup";
  }
  g_variant_iter_free(capabilities);
  return markup;
}

std::string Escaped(const char* text) {
  char* const escaped = g_markup_escape_text(text, -1);
  std::string result = escaped;
  g_free(escaped);
  return result;
}

void Notify(const Bus& bus, const char* title, const char* text) {
  // The text is shown literally.
  const std::string body = TakesMarkup(bus) ? Escaped(text) : text;
  GVariantBuilder hints;
  g_variant_builder_init(&hints, G_VARIANT_TYPE("a{sv}"));
  g_variant_builder_add(&hints, "{sv}", "desktop-entry", g_variant_new_string("tessara"));
  GVariant* const arguments = g_variant_new("(susssasa{sv}i)", "Tessara", 0U, "tessara", title,
                                            body.c_str(), nullptr, &hints, kServiceDecidesHowLong);
  Call(bus, "Notify", arguments, "(u)");
}

}  // namespace

int main(int argc, char** argv) {
  constexpr int kArguments = 3;
  if (argc != kArguments || !SessionHasBus()) return 1;
  // Connecting to a bus that never answers has no time limit of its own.
  alarm(kLongestLifeSeconds);
  const Bus bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (bus == nullptr) return 1;
  Notify(bus, argv[1], argv[2]);
  return 0;
}
