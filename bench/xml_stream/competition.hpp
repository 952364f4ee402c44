#ifndef QUOR_BENCH_XML_STREAM_COMPETITION_HPP
#define QUOR_BENCH_XML_STREAM_COMPETITION_HPP

// A big log, and what every competitor makes of it: a node for each element, which goes
// through the same hands.

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace xml_stream_bench {

inline constexpr std::size_t piece = 65536;
inline constexpr char const *read_name = "200 MB of log, a node for each element";

/// The file of the log, made when it is asked for first and removed at the end.
char const *log_file();
/// The same in another size. The caller removes it.
void write_log(char const *path, std::uint64_t bytes);

/// What is left of all nodes. The same for everybody.
struct harvest {
	std::uint64_t nodes = 0;
	std::uint64_t attributes = 0;
	std::uint64_t bytes = 0;
	std::uint64_t sum = 0;

	bool operator==(harvest const &other) const {
		return nodes == other.nodes && attributes == other.attributes && bytes == other.bytes && sum == other.sum;
	}

	template <class Attributes>
	void take(unsigned int id, unsigned int parent_id, std::string_view tag, Attributes const &list,
	          std::string_view data) {
		++nodes;
		sum += id * std::uint64_t(31) + parent_id;
		bytes += tag.size() + data.size();
		sum += data.empty() ? 0U : static_cast<unsigned char>(data.back());
		for (auto const &[name, value] : list) {
			++attributes;
			bytes += name.size() + value.size();
			sum += static_cast<unsigned char>(value.back());
		}
	}
};

/// The node of a competitor that reports events: what the library's node holds, but for the
/// line.
struct built_node {
	std::string tag;
	unsigned int id = 0;
	unsigned int parent_id = 0;
	std::list<std::pair<std::string, std::string>> attributes;
	std::string data;
};

/// Makes nodes of events, and hands each on when its element is closed. The root's own isn't.
class builder {
public:
	template <class Text>
	void open(Text tag) {
		built_node node;
		node.tag = tag;
		node.id = ++m_last_id;
		node.parent_id = m_open.empty() ? 0 : m_open.back().id;
		m_open.push_back(std::move(node));
	}
	void add_attribute(std::string_view name, std::string_view value) {
		m_open.back().attributes.emplace_back(name, value);
	}
	void add_text(std::string_view text) {
		if (m_open.size() > 1) {
			m_open.back().data.append(text);
		}
	}
	void close() {
		built_node const node(std::move(m_open.back()));
		m_open.pop_back();
		if (!m_open.empty()) {
			result.take(node.id, node.parent_id, node.tag, node.attributes, node.data);
		}
	}

	harvest result;

private:
	std::vector<built_node> m_open;
	unsigned int m_last_id = 0;
};

harvest const &expected();
void compete(std::string const &name, harvest (*read)(char const *path));

} // namespace xml_stream_bench

#endif
