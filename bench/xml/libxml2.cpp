#include <libxml/parser.h>

#include "frame/frame.hpp"
#include "xml/competition.hpp"

namespace xml_bench {
namespace {

std::string string_of(xmlChar const *text) {
	return reinterpret_cast<char const *>(text);
}

std::string string_of(xmlChar const *text, std::size_t length) {
	return std::string(reinterpret_cast<char const *>(text), length);
}

void open(void *user, xmlChar const *name, xmlChar const *, xmlChar const *, int, xmlChar const **, int count, int,
          xmlChar const **attributes) {
	auto &to = *static_cast<receiver *>(user);
	to.open(string_of(name));
	for (; count != 0; --count, attributes += 5) {
		to.attribute(string_of(attributes[0]),
		             string_of(attributes[3], static_cast<std::size_t>(attributes[4] - attributes[3])));
	}
}

void close(void *user, xmlChar const *name, xmlChar const *, xmlChar const *) {
	static_cast<receiver *>(user)->close(string_of(name));
}

void text(void *user, xmlChar const *bytes, int length) {
	static_cast<receiver *>(user)->text(string_of(bytes, static_cast<std::size_t>(length)));
}

void comment(void *user, xmlChar const *body) {
	static_cast<receiver *>(user)->comment(string_of(body));
}

void read(std::string const &document, receiver &to) {
	xmlSAXHandler handler = {};
	handler.initialized = XML_SAX2_MAGIC;
	handler.startElementNs = &open;
	handler.endElementNs = &close;
	handler.characters = &text;
	handler.ignorableWhitespace = &text;
	handler.comment = &comment;
	if (xmlSAXUserParseMemory(&handler, &to, document.data(), static_cast<int>(document.size())) != 0) {
		bench::disagree("libxml2 finds a fault");
	}
}

void describe() {
	compete(events_name, "libxml2 SAX", &read);
}

bench::entry const added(&describe);

} // namespace
} // namespace xml_bench
