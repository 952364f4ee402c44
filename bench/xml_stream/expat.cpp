#include <fstream>

#include <expat.h>

#include "frame/frame.hpp"
#include "xml_stream/competition.hpp"

namespace xml_stream_bench {
namespace {

harvest read(char const *path) {
	XML_Parser const parser = XML_ParserCreate(nullptr);
	builder made;
	XML_SetUserData(parser, &made);
	XML_SetElementHandler(
	    parser,
	    [](void *user, XML_Char const *name, XML_Char const **attributes) {
		    auto &to = *static_cast<builder *>(user);
		    to.open(name);
		    for (; *attributes != nullptr; attributes += 2) {
			    to.add_attribute(attributes[0], attributes[1]);
		    }
	    },
	    [](void *user, XML_Char const *) { static_cast<builder *>(user)->close(); });
	XML_SetCharacterDataHandler(parser, [](void *user, XML_Char const *text, int length) {
		static_cast<builder *>(user)->add_text({text, static_cast<std::size_t>(length)});
	});
	std::ifstream file(path, std::ios::binary);
	bool more = true;
	while (more) {
		void *const buffer = XML_GetBuffer(parser, static_cast<int>(piece));
		file.read(static_cast<char *>(buffer), static_cast<std::streamsize>(piece));
		more = file.gcount() != 0;
		if (XML_ParseBuffer(parser, static_cast<int>(file.gcount()), more ? 0 : 1) != XML_STATUS_OK) {
			bench::disagree("expat finds a fault");
		}
	}
	XML_ParserFree(parser);
	return made.result;
}

void describe() {
	compete("expat", &read);
}

bench::entry const added(&describe);

} // namespace
} // namespace xml_stream_bench
