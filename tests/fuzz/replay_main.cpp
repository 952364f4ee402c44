// Runs a fuzz target over files without a fuzzing engine, so that the seeds, and every
// input that was once found, are part of each ordinary test run:
//
//   <target>_replay FILE-OR-DIRECTORY...
//
// Each file is run whole and cut short at up to 64 places, in a block of exactly its
// size so that the sanitizers see a read behind its end. Prints the name of each file
// before its run; the last name printed is the one that failed.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size);

namespace {

namespace fs = std::filesystem;

constexpr std::size_t cuts = 64;

void run(std::string const &bytes, std::size_t size) {
	std::unique_ptr<std::uint8_t[]> const block(new std::uint8_t[size]);
	if (size != 0) {
		std::memcpy(block.get(), bytes.data(), size);
	}
	LLVMFuzzerTestOneInput(block.get(), size);
}

bool run_file(fs::path const &path) {
	std::ifstream file(path, std::ios::binary);
	if (!file) {
		std::cerr << "can't open " << path << '\n';
		return false;
	}
	std::string const bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
	std::cout << path.filename().string() << " (" << bytes.size() << " bytes)" << std::endl;
	run(bytes, bytes.size());
	std::size_t const step = std::max<std::size_t>(1, bytes.size() / cuts);
	for (std::size_t size = 0; size < bytes.size(); size += step) {
		run(bytes, size);
	}
	return true;
}

std::vector<fs::path> collect(int count, char **arguments) {
	std::vector<fs::path> files;
	for (int i = 1; i < count; ++i) {
		fs::path const path(arguments[i]);
		if (!fs::is_directory(path)) {
			files.push_back(path);
			continue;
		}
		for (fs::directory_entry const &entry : fs::directory_iterator(path)) {
			if (entry.is_regular_file()) {
				files.push_back(entry.path());
			}
		}
	}
	std::sort(files.begin(), files.end());
	return files;
}

} // namespace

int main(int count, char **arguments) {
	std::vector<fs::path> const files = collect(count, arguments);
	if (files.empty()) {
		std::cerr << "no files to run\n";
		return 2;
	}
	for (fs::path const &file : files) {
		if (!run_file(file)) {
			return 2;
		}
	}
	std::cout << files.size() << " files\n";
	return 0;
}
