#include "i18n/message_storage.hpp"

#include <algorithm>

namespace QUOR_2_9::i18n {

using detail::compiled_message;
using strings::ustring8;

namespace {

/// How many places are looked at for one name.
constexpr std::size_t most_probes = 32;

constexpr std::size_t smallest_index = 16;

std::string_view write(char *&to, std::string_view text) noexcept {
	char *const first = to;
	to = std::copy(text.begin(), text.end(), to);
	return {first, text.size()};
}

} // namespace

message_t const *catalog_t::storage::record::made() const noexcept {
	element const *const there = m_made.load(std::memory_order_acquire);
	return there != nullptr ? &there->second : nullptr;
}

std::string_view catalog_t::storage::record::locale() const noexcept {
	message_t const *const there = made();
	return there != nullptr ? std::string_view(there->_orginal_locale()) : m_texts.locale;
}

catalog_t::storage::storage(storage const &other) {
	reserve(other.size());
	other.visit([this](record const &one) { add(one, hash_of(one.name())); });
}

catalog_t::storage::storage(std::map<ustring8, message_t> const &messages) {
	reserve(messages.size());
	for (auto const &[name, message] : messages) {
		store(name, message);
	}
}

catalog_t::storage::record *catalog_t::storage::find(std::string_view name, std::size_t hash) const noexcept {
	if (m_places.empty()) {
		return nullptr;
	}
	std::size_t const mask = m_places.size() - 1;
	for (std::size_t i = 0; i != most_probes; ++i) {
		place const &one = m_places[(hash + i) & mask];
		if (one.taken_by == nullptr || (one.hash == hash && one.taken_by->name() == name)) {
			return one.taken_by;
		}
	}
	auto const found = m_crowded.find(name);
	return found != m_crowded.end() ? found->second : nullptr;
}

void catalog_t::storage::put(places &to, crowd &others, place const &one) {
	std::size_t const mask = to.size() - 1;
	for (std::size_t i = 0; i != most_probes; ++i) {
		place &there = to[(one.hash + i) & mask];
		if (there.taken_by == nullptr) {
			there = one;
			return;
		}
	}
	others.emplace(one.taken_by->name(), one.taken_by);
}

/// Makes room for so many messages, with all present ones in their places.
void catalog_t::storage::reserve(std::size_t count) {
	if (2 * count <= m_places.size()) {
		return;
	}
	std::size_t size = smallest_index;
	while (size < 2 * count) {
		size *= 2;
	}
	places larger(size);
	crowd others;
	for (place const &one : m_places) {
		if (one.taken_by != nullptr) {
			put(larger, others, one);
		}
	}
	for (auto const &[name, one] : m_crowded) {
		put(larger, others, {hash_of(name), one});
	}
	m_places.swap(larger);
	m_crowded.swap(others);
}

/// The same text for all messages of a language.
std::string_view catalog_t::storage::kept_locale(std::string_view locale) {
	if (locale != m_last_locale) {
		auto const found = m_locales.find(locale);
		m_last_locale = found != m_locales.end() ? *found : *m_locales.emplace(locale).first;
	}
	return m_last_locale;
}

void catalog_t::storage::write_texts(record &to, compiled_message const &from) {
	std::string_view const locale = kept_locale(from.locale);
	// Texts that are replaced again and again take no memory each time.
	std::size_t const size = from.size();
	char *at = const_cast<char *>(to.m_texts.name.data());
	if (size > to.m_room || at == nullptr) {
		std::size_t const room = to.m_room == 0 ? size : std::max(size, to.m_room + to.m_room / 2);
		at = static_cast<char *>(m_texts.take(room));
		to.m_room = room;
	}
	to.m_texts.name = write(at, from.name);
	to.m_texts.meta = write(at, from.meta);
	to.m_texts.items = write(at, from.items);
	to.m_texts.locale = locale;
}

message_t const &catalog_t::storage::message(record const &of) const {
	message_t const *const there = of.made();
	if (there != nullptr) {
		return *there;
	}
	std::lock_guard<std::mutex> const guard(m_making);
	return make(const_cast<record &>(of)).second;
}

/// The element of the record; whoever calls holds the lock.
catalog_t::element &catalog_t::storage::make(record &of) const {
	element *made = of.m_made.load(std::memory_order_relaxed);
	if (made == nullptr) {
		made = &*m_messages.emplace_hint(m_messages.end(), of.name(), detail::message_maker::make(of.m_texts));
		of.m_made.store(made, std::memory_order_release);
	}
	return *made;
}

catalog_t::storage::message_map const &catalog_t::storage::messages() const {
	std::lock_guard<std::mutex> const guard(m_making);
	if (m_messages.size() != m_size) {
		std::vector<record *> waiting;
		waiting.reserve(m_size - m_messages.size());
		visit([&waiting](record const &one) {
			if (one.made() == nullptr) {
				waiting.push_back(const_cast<record *>(&one));
			}
		});
		// In the order of the map, where each one is the last one unless others were made before.
		std::sort(waiting.begin(), waiting.end(),
		          [](record const *a, record const *b) { return a->name() < b->name(); });
		for (record *const one : waiting) {
			make(*one);
		}
	}
	return m_messages;
}

message_t const &catalog_t::storage::store(ustring8 const &name, message_t const &message) {
	std::size_t const hash = hash_of(name);
	record *const found = find(name, hash);
	if (found == nullptr) {
		return add(name, message, hash);
	}
	element *made = found->m_made.load(std::memory_order_relaxed);
	if (made == nullptr) {
		made = &*m_messages.emplace(name, message).first;
		found->m_made.store(made, std::memory_order_release);
	} else {
		made->second = message;
	}
	return made->second;
}

message_t const &catalog_t::storage::add(ustring8 const &name, message_t const &message, std::size_t hash) {
	reserve(m_size + 1);
	record *const added = new_record();
	auto const made = m_messages.emplace(name, message).first;
	added->m_texts.name = made->first;
	added->m_made.store(&*made, std::memory_order_release);
	try {
		put(m_places, m_crowded, {hash, added});
	} catch (...) {
		m_messages.erase(made);
		throw;
	}
	++m_size;
	return made->second;
}

void catalog_t::storage::add(compiled_message const &from, std::size_t hash) {
	reserve(m_size + 1);
	record *const added = new_record();
	write_texts(*added, from);
	put(m_places, m_crowded, {hash, added});
	++m_size;
}

void catalog_t::storage::add(record const &from, std::size_t hash) {
	message_t const *const made = from.made();
	if (made != nullptr) {
		add(ustring8(from.name()), *made, hash);
	} else {
		add(from.texts(), hash);
	}
}

void catalog_t::storage::replace(record &there, compiled_message const &from) {
	element *const made = there.m_made.load(std::memory_order_relaxed);
	if (made != nullptr) {
		made->second = detail::message_maker::make(from);
	} else {
		write_texts(there, from);
	}
}

void catalog_t::storage::replace(record &there, record const &from) {
	message_t const *const made = from.made();
	if (made != nullptr) {
		store(ustring8(there.name()), *made);
	} else {
		replace(there, from.texts());
	}
}

} // namespace QUOR_2_9::i18n
