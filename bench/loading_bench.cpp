// Loading message catalogs, beside a general parser whose document fills a hash map.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>

#include <unistd.h>

#include <quor/quor.hpp>

#include "frame/frame.hpp"
#include "loading/competition.hpp"
#include "xml/catalog_text.hpp"

namespace loading_bench {
namespace {

/// Set in the process that only loads a file: who loads it, and its path.
constexpr char const *alone_name = "QUOR_BENCH_LOADS_ALONE";
constexpr char const *alone_path = "QUOR_BENCH_LOADS_FILE";

using quor::i18n::message_item;

class catalogs final : public loaded {
public:
	explicit catalogs(char const *path) {
		auto const result = m_catalogs.load(path, "de");
		if (result != quor::i18n::message_catalogs::no_error) {
			bench::disagree("the library's result");
		}
	}

	std::size_t size() const override {
		std::size_t sum = 0;
		for (auto const &[name, catalog] : m_catalogs) {
			sum += catalog->size();
		}
		return sum;
	}

	std::string text(std::string_view name) const override {
		std::string text;
		for (auto const &[catalog_name, catalog] : m_catalogs) {
			for (message_item const &item : catalog->message(quor::strings::ustring8(name))) {
				auto const data = item.data();
				bool const literal = item.type() == message_item::type_value;
				text += literal ? std::string(data) : '{' + data.substr(0, data.find('\1')) + '}';
			}
		}
		return text;
	}

private:
	quor::i18n::message_catalogs m_catalogs;
};

void load(char const *path, std::function<void(loaded const &)> const &use) {
	use(catalogs(path));
}

class file_on_disk {
public:
	explicit file_on_disk(std::size_t messages)
	    : m_path(QUOR_BENCH_FOLDER "/loading_" + std::to_string(messages) + ".xmc") {
		std::ofstream file(m_path, std::ios::binary);
		file << xml_bench::catalog_text(messages);
	}
	~file_on_disk() { std::remove(m_path.c_str()); }
	file_on_disk(file_on_disk const &) = delete;
	file_on_disk &operator=(file_on_disk const &) = delete;

	char const *path() const { return m_path.c_str(); }

private:
	std::string m_path;
};

/// The names of all messages, from the text of the file.
std::vector<std::string> names_in(char const *path) {
	std::ifstream file(path, std::ios::binary);
	std::vector<std::string> names;
	std::string line;
	std::string const opening = "<msg name=\"";
	while (std::getline(file, line)) {
		std::size_t const at = line.find(opening);
		if (at != std::string::npos) {
			std::size_t const begin = at + opening.size();
			names.push_back(line.substr(begin, line.find('"', begin) - begin));
		}
	}
	return names;
}

void compare(std::string const &name, loader load, char const *path) {
	load(path, [&](loaded const &one) {
		catalogs const expected(path);
		auto const names = names_in(path);
		bool same = one.size() == names.size() && expected.size() == names.size();
		for (std::string const &message : names) {
			std::string const text = one.text(message);
			same = same && !text.empty() && text == expected.text(message);
		}
		if (!same) {
			bench::disagree("the texts of " + name);
		}
	});
}

/// The most memory that this process had so far, in bytes.
double peak() {
	std::ifstream status("/proc/self/status");
	std::string line;
	while (std::getline(status, line)) {
		if (line.compare(0, 6, "VmHWM:") == 0) {
			return 1024 * std::stod(line.substr(6));
		}
	}
	bench::disagree("there is no peak to compare");
}

/// The most memory of a process that loads the file as the competitor does.
double peak_of_process(std::string const &name, char const *path) {
	char program[4096] = {};
	if (readlink("/proc/self/exe", program, sizeof program - 1) <= 0) {
		bench::disagree("the program doesn't find itself");
	}
	std::string const command =
	    std::string(alone_name) + "='" + name + "' " + alone_path + "='" + path + "' '" + program + "'";
	std::FILE *const output = popen(command.c_str(), "r");
	double bytes = 0;
	if (output == nullptr || std::fscanf(output, "%lf", &bytes) != 1 || pclose(output) != 0) {
		bench::disagree("the process of " + name);
	}
	return bytes;
}

/// The part of the process that only loads a file.
void load_alone(loader load) {
	load(std::getenv(alone_path), [](loaded const &) {});
	std::printf("%.0f\n", peak());
	std::fflush(stdout);
	std::_Exit(EXIT_SUCCESS);
}

std::string const peak_name = "peak memory of loading 100000 messages, in sizes of the file";

void describe() {
	compete(bench::library, &load);
	for (std::size_t const messages : sizes) {
		bench::limit(operation_name(messages), "pugixml into a map", 1, messages > 1'000 ? 0.3 : 0);
	}
	bench::bound(peak_name, 6);
}

bench::entry const added(&describe);

} // namespace

std::string operation_name(std::size_t messages) {
	return "load " + std::to_string(messages) + " messages";
}

char const *catalog_file(std::size_t messages) {
	static std::map<std::size_t, std::unique_ptr<file_on_disk>> files;
	auto &file = files[messages];
	if (file == nullptr) {
		file = std::make_unique<file_on_disk>(messages);
	}
	return file->path();
}

void compete(std::string const &name, loader load) {
	if (char const *const wanted = std::getenv(alone_name)) {
		if (wanted == name) {
			load_alone(load);
		}
		return;
	}
	for (std::size_t const messages : sizes) {
		char const *const path = catalog_file(messages);
		compare(name, load, path);
		bench::operation(operation_name(messages), name, [load, path](benchmark::State &state) {
			for (auto _ : state) {
				load(path, [](loaded const &one) { benchmark::DoNotOptimize(&one); });
			}
		});
	}
	char const *const largest = catalog_file(sizes[1]);
	auto const bytes = static_cast<double>(std::filesystem::file_size(largest));
	bench::figure(peak_name, name, peak_of_process(name, largest) / bytes);
}

} // namespace loading_bench
