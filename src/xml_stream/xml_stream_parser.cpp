#include <quor/xml_stream/xml_stream_parser.hpp>

#include <quor/strings/transcode.hpp>

#include "xml_stream/stream_reader.hpp"

namespace QUOR_2_9::xml_stream {

using strings::ustring16;
using strings::ustring32;
using strings::ustring8;
using error_type = xml_stream_parser::error_type;

char const *xml_stream_parser::EmptyNodeQueue::what() const noexcept {
	return "empty node queue";
}

xml_stream_parser::xml_stream_parser(ustring8 const &path, unsigned int open_depth)
    : xml_stream_parser(strings::utf8_to_utf16(path), open_depth) {}

xml_stream_parser::xml_stream_parser(ustring16 const &path, unsigned int open_depth) : m_open_depth(open_depth) {
	init(path);
}

xml_stream_parser::xml_stream_parser(ustring32 const &path, unsigned int open_depth)
    : xml_stream_parser(strings::utf32_to_utf16(path), open_depth) {}

xml_stream_parser::~xml_stream_parser() = default;

void xml_stream_parser::init(ustring16 const &path) {
	m_reader = std::make_unique<detail::stream_reader>(path, m_open_depth);
}

error_type const &xml_stream_parser::parse() {
	return m_reader->parse();
}

error_type const &xml_stream_parser::recover(std::list<ustring8> const &tags) {
	return m_reader->recover(tags);
}

error_type const &xml_stream_parser::recover(std::list<std::string> const &tags) {
	return m_reader->recover({tags.begin(), tags.end()});
}

error_type const &xml_stream_parser::recover(std::initializer_list<char const *> tags) {
	return m_reader->recover({tags.begin(), tags.end()});
}

error_type const &xml_stream_parser::error() const noexcept {
	return m_reader->status;
}

bool xml_stream_parser::node_queue_empty() const noexcept {
	return !m_reader->queue.has_front();
}

types::uint32 xml_stream_parser::node_queue_size() const noexcept {
	return static_cast<types::uint32>(m_reader->queue.count_front(m_reader->queue.size()));
}

xml_stream_parser::node &xml_stream_parser::node_queue_front() {
	if (node_queue_empty()) {
		throw EmptyNodeQueue();
	}
	return m_reader->queue.front();
}

xml_stream_parser::node xml_stream_parser::node_queue_pop() {
	if (node_queue_empty()) {
		throw EmptyNodeQueue();
	}
	return m_reader->queue.pop();
}

ustring8 const &xml_stream_parser::root() const noexcept {
	return m_reader->root;
}

types::uint32 xml_stream_parser::line() const noexcept {
	return m_reader->window.committed.line;
}

unsigned int xml_stream_parser::parse_offset() const noexcept {
	return static_cast<unsigned int>(m_reader->window.offset());
}

unsigned int xml_stream_parser::file_length() const {
	return static_cast<unsigned int>(m_reader->window.file_length());
}

std::size_t xml_stream_parser::load() {
	return m_reader->load();
}

error_type const &xml_stream_parser::do_parse() {
	return m_reader->do_parse();
}

void xml_stream_parser::parse_next() {
	m_reader->parse_next();
}

void xml_stream_parser::new_node(std::string_view name, error_type status, bool available) {
	m_reader->new_node(name, status, available);
}

void xml_stream_parser::close_tag() {
	m_reader->close_tag();
}

void xml_stream_parser::end_of_open_node(std::string_view name, error_type status) {
	m_reader->end_of_open_node(name, status);
}

bool xml_stream_parser::finish_comment() {
	return m_reader->finish_comment();
}

std::string_view xml_stream_parser::parse_name() {
	return m_reader->parse_name();
}

std::string_view xml_stream_parser::parse_attrib_value() {
	return m_reader->parse_attrib_value();
}

ustring8 xml_stream_parser::parse_entity() {
	return m_reader->parse_entity();
}

void xml_stream_parser::skip_whitespace() {
	m_reader->skip_whitespace();
}

bool xml_stream_parser::is_whitespace(char byte) noexcept {
	return detail::is_whitespace(byte);
}

bool xml_stream_parser::queue_size_less_than(std::size_t count) const noexcept {
	return m_reader->queue_size_less_than(count);
}

} // namespace QUOR_2_9::xml_stream
