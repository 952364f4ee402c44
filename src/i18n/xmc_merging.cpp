#include "i18n/xmc_merging.hpp"

#include <utility>

#include "i18n/message_storage.hpp"

namespace QUOR_2_9::i18n::_private {

types::uint32 xmc_file_loader::merging::copy(xmc_file_loader const &from, catalog_map &to) {
	types::uint32 stored = 0;
	for (auto const &[name, loaded] : from.m_catalogs) {
		stored += copy_messages(from, loaded, catalog_of(to, name));
	}
	return stored;
}

types::uint32 xmc_file_loader::merging::move(xmc_file_loader &from, catalog_map &to) {
	types::uint32 stored = 0;
	for (auto &[name, loaded] : from.m_catalogs) {
		stored += move_messages(from, loaded, catalog_of(to, name));
	}
	return stored;
}

catalog_t &xmc_file_loader::merging::catalog_of(catalog_map &map, strings::ustring8 const &name) {
	auto entry = map.find(name);
	if (entry == map.end()) {
		entry = map.emplace(name, catalog_map::mapped_type(generic::abilities::create_dynamic<catalog_t>())).first;
	}
	if (!entry->second) {
		throw "unreferanced object";
	}
	entry->second->_name(name);
	return *entry->second;
}

types::uint32 xmc_file_loader::merging::copy_messages(xmc_file_loader const &loader, catalog_t const &from,
                                                      catalog_t &to) {
	types::uint32 stored = 0;
	for (auto const &[key, message] : from.m_storage->messages) {
		auto const place = to.m_storage->messages.lower_bound(key);
		if (place == to.m_storage->messages.end() || place->first != key) {
			to.reserve_index(to.size() + 1);
			to.add_to_index(*to.m_storage->messages.emplace_hint(place, key, message));
		} else if (loader.get_locale_weight(place->second.m_orginal_locale) <=
		           loader.get_locale_weight(message.m_orginal_locale)) {
			place->second = message;
		} else {
			continue;
		}
		to.m_languages.clear();
		++stored;
	}
	return stored;
}

types::uint32 xmc_file_loader::merging::move_messages(xmc_file_loader const &loader, catalog_t &from, catalog_t &to) {
	if (to.m_storage->messages.empty()) {
		// The index first, as it may fail for want of memory.
		from.m_index.clear();
		from.reserve_index(from.size());
		to.m_index.swap(from.m_index);
		to.m_index_is_whole = from.m_index_is_whole;
		to.m_storage.swap(from.m_storage);
		to.m_languages.clear();
		return static_cast<types::uint32>(to.m_storage->messages.size());
	}
	types::uint32 stored = 0;
	for (auto &[key, message] : from.m_storage->messages) {
		auto const place = to.m_storage->messages.lower_bound(key);
		if (place == to.m_storage->messages.end() || place->first != key) {
			to.reserve_index(to.size() + 1);
			to.add_to_index(*to.m_storage->messages.emplace_hint(place, key, std::move(message)));
		} else if (loader.get_locale_weight(place->second.m_orginal_locale) <=
		           loader.get_locale_weight(message.m_orginal_locale)) {
			place->second = std::move(message);
		} else {
			continue;
		}
		to.m_languages.clear();
		++stored;
	}
	return stored;
}

types::uint32 xmc_file_loader::combine_data(catalog_map &target) {
	return merging::copy(*this, target);
}

} // namespace QUOR_2_9::i18n::_private
