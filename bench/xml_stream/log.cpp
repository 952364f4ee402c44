#include <cstdio>
#include <fstream>
#include <random>

#include "xml_stream/competition.hpp"

namespace xml_stream_bench {
namespace {

constexpr std::uint64_t log_bytes = 200'000'000;

/// One record, with its details now and then.
void append_record(std::string &to, std::mt19937 &random, std::uint64_t number) {
	static char const *const levels[] = {"debug", "info", "info", "info", "warning", "error"};
	static char const *const modules[] = {"sync", "backup", "server", "scheduler"};
	static char const *const texts[] = {"connection accepted", "transfer of 18 files finished in 3.2 seconds",
	                                    "the peer &quot;heron&quot; doesn't answer; next attempt in 30 seconds",
	                                    "cache miss", "upload of photos/2019/summer/beach_0192.jpg &gt; 4 MB"};
	std::uint64_t const bits = random();
	std::string const time = std::to_string(1700000000 + number / 7) + "." + std::to_string(100 + bits % 900);
	to += "\t<entry level=\"";
	to += levels[bits % 6];
	to += "\" time=\"" + time + "\" module=\"";
	to += modules[bits / 8 % 4];
	to += "\">";
	if (bits % 5 == 0) {
		to += "<peer name=\"wren\" port=\"" + std::to_string(1024 + bits % 60000) + "\"/><text>";
		to += texts[bits / 64 % 5];
		to += "</text></entry>\n";
	} else {
		to += texts[bits / 64 % 5];
		to += "</entry>\n";
	}
}

struct log_on_disk {
	std::string path = QUOR_BENCH_FOLDER "/xml_stream_log.xml";
	log_on_disk() { write_log(path.c_str(), log_bytes); }
	~log_on_disk() { std::remove(path.c_str()); }
};

} // namespace

void write_log(char const *path, std::uint64_t bytes) {
	std::ofstream file(path, std::ios::binary);
	std::mt19937 random(5);
	std::string text = "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>\n<log host=\"attic\">\n";
	std::uint64_t written = 0;
	for (std::uint64_t number = 0; written + text.size() < bytes; ++number) {
		append_record(text, random, number);
		if (text.size() > piece) {
			file << text;
			written += text.size();
			text.clear();
		}
	}
	file << text << "</log>\n";
}

char const *log_file() {
	static log_on_disk const file;
	return file.path.c_str();
}

} // namespace xml_stream_bench
