#ifndef QUOR_TESTS_SUPPORT_TEMPORARY_DIRECTORY_HPP
#define QUOR_TESTS_SUPPORT_TEMPORARY_DIRECTORY_HPP

// A directory of the test's own on the disk, removed with all it holds at the end.
//
//     quor_test::temporary_directory directory;
//     directory.write("a/b.txt", "content");               // made by the standard library
//     quor::system::io::exists(directory.path("a\\b.txt")) // spelled for the library

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include <quor/strings/ustring.hpp>

namespace quor_test {

class temporary_directory {
public:
	temporary_directory() {
		std::random_device random;
		do {
			m_root = std::filesystem::temp_directory_path() / ("quor-test-" + std::to_string(random()));
		} while (!std::filesystem::create_directory(m_root));
	}

	temporary_directory(temporary_directory const &) = delete;
	temporary_directory &operator=(temporary_directory const &) = delete;

	~temporary_directory() {
		std::error_code ignored;
		std::filesystem::remove_all(m_root, ignored);
	}

	std::filesystem::path const &root() const { return m_root; }

	// The library's spelling of a path in the directory; the directory itself for "".
	QUOR_2_9::strings::ustring8 path(std::string const &name = {}) const {
		auto const native = m_root.u8string();
		QUOR_2_9::strings::ustring8 const root(native.begin(), native.end());
		return name.empty() ? root : root + "\\" + name;
	}

	// Writes a file and the directories above it; `name` is UTF-8 and has slashes.
	void write(std::string const &name, std::string const &content) const {
		auto const target = native(name);
		std::filesystem::create_directories(target.parent_path());
		std::ofstream(target, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
	}

	std::string read(std::string const &name) const {
		std::ifstream stream(native(name), std::ios::binary);
		return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
	}

	void make_directory(std::string const &name) const { std::filesystem::create_directories(native(name)); }

	bool has(std::string const &name) const { return std::filesystem::exists(native(name)); }

private:
	std::filesystem::path native(std::string const &name) const {
		return m_root / std::filesystem::path(std::u8string(name.begin(), name.end()));
	}

	std::filesystem::path m_root;
};

// Makes a directory the working directory for as long as it lives.
class working_directory {
public:
	explicit working_directory(std::filesystem::path const &path) : m_previous(std::filesystem::current_path()) {
		std::filesystem::current_path(path);
	}

	working_directory(working_directory const &) = delete;
	working_directory &operator=(working_directory const &) = delete;

	~working_directory() { std::filesystem::current_path(m_previous); }

private:
	std::filesystem::path m_previous;
};

// An ASCII text in another class, unit by unit.
template <class Text>
Text ascii_as(std::string const &text) {
	Text result;
	for (char const unit : text) {
		result.push_back(static_cast<typename Text::value_type>(unit));
	}
	return result;
}

} // namespace quor_test

#endif
