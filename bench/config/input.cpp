#include "input.hpp"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <set>

namespace config_bench {
namespace {

constexpr char const *nouns[] = {"access",  "account", "archive", "backup", "buffer", "cache",  "channel", "client",
                                 "cluster", "console", "cookie",  "cursor", "daemon", "device", "display", "driver",
                                 "editor",  "engine",  "event",   "filter", "folder", "group",  "header",  "history",
                                 "index",   "journal", "keyring", "layout", "log",    "mail",   "memory",  "message",
                                 "module",  "monitor", "network", "output", "parser", "peer",   "plugin",  "pool",
                                 "printer", "proxy",   "queue",   "record", "report", "router", "schema",  "server",
                                 "session", "socket",  "storage", "stream", "table",  "thread", "timer",   "upload"};
constexpr char const *traits[] = {"color",   "count", "delay", "enabled", "format", "host",  "interval", "language",
                                  "level",   "limit", "mode",  "name",    "owner",  "path",  "port",     "priority",
                                  "retries", "size",  "style", "timeout", "title",  "width", "window",   "zone"};
constexpr char const *words[] = {"automatic", "bottom", "compact",   "default", "detailed", "english",
                                 "fixed",     "info",   "localhost", "middle",  "never",    "normal",
                                 "primary",   "random", "standard",  "strict",  "top",      "warning"};

class writer {
public:
	explicit writer(std::vector<setting> &list) : settings(list) {}

	std::string text;

	void section() {
		std::string name = pick(nouns) + "." + pick(nouns);
		if (!sections.insert(name).second) {
			name += std::to_string(sections.size());
			sections.insert(name);
		}
		text += "\n# " + title(6) + "\n[" + name + "]\n";
		std::set<std::string> names;
		for (std::size_t left = 6 + below(14); left != 0; --left) {
			std::string key = pick(nouns) + "_" + pick(traits);
			if (names.insert(key).second) {
				entry(name, key);
			}
		}
	}

private:
	std::vector<setting> &settings;
	std::set<std::string> sections;
	std::mt19937_64 random{2900};

	std::size_t below(std::size_t bound) { return static_cast<std::size_t>(random() % bound); }

	template <std::size_t Size>
	std::string pick(char const *const (&list)[Size]) {
		return list[below(Size)];
	}

	std::string title(std::size_t count) {
		std::string result = pick(words);
		while (--count != 0) {
			result += ' ';
			result += pick(nouns);
		}
		return result;
	}

	void entry(std::string const &section, std::string const &key) {
		if (below(8) == 0) {
			text += "# " + title(4) + "\n";
		}
		setting made{section, key, "", false};
		bool quoted = false;
		switch (below(10)) {
		case 0:
		case 1:
		case 2:
		case 3:
			made.value = std::to_string(below(std::size_t(1) << (4 + below(17))));
			made.number = true;
			break;
		case 4:
			made.value = below(2) == 0 ? "true" : "false";
			break;
		case 5:
			made.value = std::to_string(below(100)) + "." + std::to_string(below(100));
			break;
		case 6:
			made.value = "/var/lib/" + pick(nouns) + "/" + pick(nouns) + "-" + std::to_string(below(1000));
			break;
		case 7:
			made.value = title(3 + below(4));
			quoted = true;
			break;
		default:
			made.value = pick(words);
			break;
		}
		text += key + " = " + (quoted ? '"' + made.value + '"' : made.value) + "\n";
		settings.push_back(std::move(made));
	}
};

void store(std::string const &path, std::string const &text) {
	std::ofstream file(path, std::ios::binary);
	file << text;
	file.close();
	if (!file) {
		std::cerr << "bench: can't write " << path << '\n';
		std::exit(EXIT_FAILURE);
	}
}

std::string new_folder() {
	std::random_device seed;
	std::filesystem::path const folder =
	    std::filesystem::temp_directory_path() / ("quor-bench-" + std::to_string(seed()) + std::to_string(seed()));
	std::filesystem::create_directory(folder);
	return folder.string();
}

} // namespace

config_file::config_file(std::size_t bytes) : folder(new_folder()) {
	writer made(settings);
	while (made.text.size() < bytes) {
		made.section();
	}
	for (setting const &one : settings) {
		expected[one.section + "." + one.name] = one.value;
	}
	size = made.text.size();
	path = folder + "/settings.cfg";
	store(path, made.text);

	// Only comments have a '#', at the beginning of their line.
	for (char &unit : made.text) {
		unit = unit == '#' ? ';' : unit;
	}
	semicolon_path = folder + "/settings.ini";
	store(semicolon_path, made.text);
}

config_file::~config_file() {
	std::error_code ignored;
	std::filesystem::remove_all(folder, ignored);
}

config_file const &large_file() {
	static config_file const file(1'000'000);
	return file;
}

config_file const &small_file() {
	static config_file const file(8'000);
	return file;
}

std::vector<setting> sample(config_file const &file, bool numbers_only) {
	std::vector<setting> candidates;
	for (setting const &one : file.settings) {
		if (one.number || !numbers_only) {
			candidates.push_back(one);
		}
	}
	std::vector<setting> result;
	std::mt19937_64 random(2900);
	while (result.size() != 1024) {
		result.push_back(candidates[random() % candidates.size()]);
	}
	return result;
}

std::string unquoted(std::string const &text) {
	bool const quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
	return quoted ? text.substr(1, text.size() - 2) : text;
}

} // namespace config_bench
