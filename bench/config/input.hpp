#ifndef QUOR_BENCH_CONFIG_INPUT_HPP
#define QUOR_BENCH_CONFIG_INPUT_HPP

// Files of settings that every competitor reads in the same way: sections of dotted names,
// keys, words, paths, numbers and quoted texts, comments and empty lines.

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace config_bench {

struct setting {
	std::string section; // two words with a dot between them
	std::string name;
	std::string value; // without its quotes
	bool number;
};

/// Dotted name of a setting, its value without quotes.
using contents = std::map<std::string, std::string>;

/// A file in a folder of its own below the system's temporary folder, removed at the end.
class config_file {
public:
	/// The text has about `bytes` bytes and is the same for the same number.
	explicit config_file(std::size_t bytes);
	config_file(config_file const &) = delete;
	config_file &operator=(config_file const &) = delete;
	~config_file();

	std::vector<setting> settings;
	contents expected;
	std::size_t size = 0;
	/// Comments begin with '#'.
	std::string path;
	/// The same text but for the comments, which begin with ';'.
	std::string semicolon_path;

private:
	std::string folder;
};

/// What a large program keeps: about a million bytes.
config_file const &large_file();
/// What most programs have: about eight thousand bytes.
config_file const &small_file();

/// 1024 settings of the file in an order without order.
std::vector<setting> sample(config_file const &file, bool numbers_only);

/// `text` without the quotes around it.
std::string unquoted(std::string const &text);

} // namespace config_bench

#endif
