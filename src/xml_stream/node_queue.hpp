#ifndef QUOR_SRC_XML_STREAM_NODE_QUEUE_HPP
#define QUOR_SRC_XML_STREAM_NODE_QUEUE_HPP

#include <cstddef>
#include <list>

#include <quor/xml_stream/xml_stream_parser.hpp>

namespace QUOR_2_9::xml_stream::detail {

/// The queue of nodes. One that is taken out while its element is open lives on unseen,
/// until the element is closed or forgotten.
class node_queue {
public:
	using node = xml_stream_parser::node;

	struct entry {
		node value;
		bool open = false;
		bool unseen = false;
	};
	using position = std::list<entry>::iterator;

	std::size_t size() const noexcept { return m_queue.size(); }
	bool has_front() const noexcept { return !m_queue.empty() && m_queue.front().value.available(); }
	/// How many available nodes stand at the front, counted up to `limit`.
	std::size_t count_front(std::size_t limit) const noexcept;
	/// Call both only where `has_front`.
	node &front() noexcept { return m_queue.front().value; }
	node pop();

	/// A node for an element that is open or not, with any contents. It isn't queued before
	/// `push`, which the next `prepare` has to wait for.
	position prepare();
	/// Queues what `prepare` made, at the back.
	void push(bool open) noexcept;
	/// The element of an open node is closed or given up.
	void close(position at) noexcept;
	/// Takes all out.
	void clear() noexcept;

private:
	void release(std::list<entry> &list, position at) noexcept;

	std::list<entry> m_queue;
	std::list<entry> m_unseen;
	std::list<entry> m_spare; // without long texts
};

} // namespace QUOR_2_9::xml_stream::detail

#endif
