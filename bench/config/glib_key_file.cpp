// GLib's GKeyFile.

#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include <glib.h>

#include "config/competition.hpp"

namespace config_bench {
namespace {

constexpr char const *name = "GKeyFile";

struct release {
	void operator()(gchar *text) const { g_free(text); }
	void operator()(gchar **list) const { g_strfreev(list); }
};

class key_file {
public:
	using key_type = std::pair<std::string, std::string>;

	explicit key_file(config_file const &source) : file(g_key_file_new()) {
		if (g_key_file_load_from_file(file, source.path.c_str(), G_KEY_FILE_NONE, nullptr) == FALSE) {
			bench::disagree("GKeyFile doesn't read the file");
		}
	}
	key_file(key_file const &) = delete;
	key_file &operator=(key_file const &) = delete;
	~key_file() { g_key_file_free(file); }

	contents all() const {
		contents result;
		std::unique_ptr<gchar *, release> const groups(g_key_file_get_groups(file, nullptr));
		for (gchar **group = groups.get(); *group != nullptr; ++group) {
			std::unique_ptr<gchar *, release> const keys(g_key_file_get_keys(file, *group, nullptr, nullptr));
			for (gchar **key = keys.get(); *key != nullptr; ++key) {
				result[std::string(*group) + "." + *key] = plain(text({*group, *key}));
			}
		}
		return result;
	}

	key_type key(setting const &one) const { return {one.section, one.name}; }

	std::unique_ptr<gchar, release> text(key_type const &key) const {
		return std::unique_ptr<gchar, release>(
		    g_key_file_get_string(file, key.first.c_str(), key.second.c_str(), nullptr));
	}

	int number(key_type const &key) const {
		return g_key_file_get_integer(file, key.first.c_str(), key.second.c_str(), nullptr);
	}

	static std::string plain(std::unique_ptr<gchar, release> const &text) { return text ? text.get() : ""; }

private:
	GKeyFile *file;
};

void describe() {
	compete<key_file, key_file>(name);
}

bench::entry const added(&describe);

} // namespace
} // namespace config_bench
