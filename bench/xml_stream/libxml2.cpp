#include <fstream>
#include <vector>

#include <libxml/parser.h>

#include "frame/frame.hpp"
#include "xml_stream/competition.hpp"

namespace xml_stream_bench {
namespace {

char const *text_of(xmlChar const *text) {
	return reinterpret_cast<char const *>(text);
}

void open(void *user, xmlChar const *name, xmlChar const *, xmlChar const *, int, xmlChar const **, int count, int,
          xmlChar const **attributes) {
	auto &to = *static_cast<builder *>(user);
	to.open(text_of(name));
	for (; count != 0; --count, attributes += 5) {
		to.add_attribute(text_of(attributes[0]),
		                 {text_of(attributes[3]), static_cast<std::size_t>(attributes[4] - attributes[3])});
	}
}

void close(void *user, xmlChar const *, xmlChar const *, xmlChar const *) {
	static_cast<builder *>(user)->close();
}

void text(void *user, xmlChar const *bytes, int length) {
	static_cast<builder *>(user)->add_text({text_of(bytes), static_cast<std::size_t>(length)});
}

/// What remains without the building: the events are counted.
void count_open(void *user, xmlChar const *, xmlChar const *, xmlChar const *, int, xmlChar const **, int, int,
                xmlChar const **) {
	++*static_cast<std::uint64_t *>(user);
}

void count_close(void *user, xmlChar const *, xmlChar const *, xmlChar const *) {
	++*static_cast<std::uint64_t *>(user);
}

void count_text(void *user, xmlChar const *, int) {
	++*static_cast<std::uint64_t *>(user);
}

void parse(char const *path, xmlSAXHandler &handler, void *user) {
	handler.initialized = XML_SAX2_MAGIC;
	std::ifstream file(path, std::ios::binary);
	std::vector<char> bytes(piece);
	xmlParserCtxtPtr const context = xmlCreatePushParserCtxt(&handler, user, nullptr, 0, path);
	xmlCtxtUseOptions(context, XML_PARSE_HUGE);
	while (file.read(bytes.data(), static_cast<std::streamsize>(piece)), file.gcount() != 0) {
		xmlParseChunk(context, bytes.data(), static_cast<int>(file.gcount()), 0);
	}
	if (xmlParseChunk(context, bytes.data(), 0, 1) != 0) {
		bench::disagree("libxml2 finds a fault");
	}
	xmlFreeParserCtxt(context);
}

harvest read(char const *path) {
	xmlSAXHandler handler = {};
	handler.startElementNs = &open;
	handler.endElementNs = &close;
	handler.characters = &text;
	builder made;
	parse(path, handler, &made);
	return made.result;
}

void describe() {
	compete("libxml2 SAX", &read);
	bench::operation(read_name, "libxml2 SAX, no nodes", [](benchmark::State &state) {
		for (auto _ : state) {
			xmlSAXHandler handler = {};
			handler.startElementNs = &count_open;
			handler.endElementNs = &count_close;
			handler.characters = &count_text;
			std::uint64_t count = 0;
			parse(log_file(), handler, &count);
			benchmark::DoNotOptimize(count);
		}
	});
}

bench::entry const added(&describe);

} // namespace
} // namespace xml_stream_bench
