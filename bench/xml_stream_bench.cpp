// The stream parser beside others that read a file in pieces.

#include <quor/quor.hpp>

#include "frame/frame.hpp"
#include "xml_stream/competition.hpp"

namespace xml_stream_bench {
namespace {

using quor::xml_stream::xml_stream_parser;

harvest read(char const *path) {
	harvest result;
	xml_stream_parser parser(path, 1);
	do {
		parser.parse();
		while (!parser.node_queue_empty()) {
			auto const node = parser.node_queue_pop();
			if (node.tag() != parser.root()) {
				result.take(node.id(), node.parent_id(), node.tag(), node.attribs(), node.data());
			}
		}
	} while (parser.error() == xml_stream_parser::status_ok);
	if (parser.error() != xml_stream_parser::status_end_of_document) {
		bench::disagree("the library's status");
	}
	return result;
}

void describe() {
	compete(bench::library, &read);
	bench::limit(read_name, "expat", 1 / 1.5, 0.5);
	bench::limit(read_name, "libxml2 SAX", 1, 0.65);
	bench::limit(read_name, "libxml2 SAX, no nodes", 1);
}

bench::entry const added(&describe);

} // namespace

harvest const &expected() {
	static harvest const result = read(log_file());
	return result;
}

void compete(std::string const &name, harvest (*competitor)(char const *path)) {
	if (!(competitor(log_file()) == expected())) {
		bench::disagree("the nodes of " + name);
	}
	bench::operation(read_name, name, [competitor](benchmark::State &state) {
		for (auto _ : state) {
			auto const result = competitor(log_file());
			benchmark::DoNotOptimize(&result);
		}
	});
}

} // namespace xml_stream_bench
