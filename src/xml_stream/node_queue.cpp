#include "xml_stream/node_queue.hpp"

#include <utility>

namespace QUOR_2_9::xml_stream::detail {
namespace {

/// As many as wait in the queue as a rule.
constexpr std::size_t most_spare = 128;

} // namespace

std::size_t node_queue::count_front(std::size_t limit) const noexcept {
	std::size_t count = 0;
	for (auto at = m_queue.begin(); count != limit && at != m_queue.end() && at->value.available(); ++at) {
		++count;
	}
	return count;
}

node_queue::node node_queue::pop() {
	auto const at = m_queue.begin();
	node result(std::move(at->value));
	release(m_queue, at);
	return result;
}

node_queue::position node_queue::prepare() {
	if (m_spare.empty()) {
		m_spare.emplace_front();
	}
	return m_spare.begin();
}

void node_queue::push(bool open) noexcept {
	m_spare.front().open = open;
	m_spare.front().unseen = false;
	m_queue.splice(m_queue.end(), m_spare, m_spare.begin());
}

void node_queue::close(position at) noexcept {
	at->open = false;
	if (at->unseen) {
		at->value = node();
		release(m_unseen, at);
	}
}

void node_queue::clear() noexcept {
	while (!m_queue.empty()) {
		m_queue.front().value = node();
		release(m_queue, m_queue.begin());
	}
}

/// Takes a node that is empty or moved from out of its list: to the unseen ones, or among the
/// spare ones.
void node_queue::release(std::list<entry> &list, position at) noexcept {
	if (at->open) {
		at->unseen = true;
		m_unseen.splice(m_unseen.end(), list, at);
	} else if (m_spare.size() < most_spare) {
		m_spare.splice(m_spare.begin(), list, at);
	} else {
		list.erase(at);
	}
}

} // namespace QUOR_2_9::xml_stream::detail
