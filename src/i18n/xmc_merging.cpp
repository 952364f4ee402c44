#include "i18n/xmc_merging.hpp"

#include <string_view>

#include "i18n/message_storage.hpp"

namespace QUOR_2_9::i18n::_private {

using strings::ustring8;

types::uint32 xmc_file_loader::merging::copy(xmc_file_loader const &from, catalog_map &to) {
	types::uint32 stored = 0;
	for (auto const &[name, loaded] : from.m_catalogs) {
		stored += merge(from, loaded, catalog_of(to, name), newer_wins);
	}
	return stored;
}

types::uint32 xmc_file_loader::merging::move(xmc_file_loader &from, catalog_map &to) {
	types::uint32 stored = 0;
	for (auto &[name, loaded] : from.m_catalogs) {
		// One that is there may have been walked, and keeps the end of that walk.
		bool const is_new = to.find(name) == to.end();
		catalog_t &catalog = catalog_of(to, name);
		if (is_new) {
			catalog.m_storage.swap(loaded.m_storage);
			stored += static_cast<types::uint32>(catalog.size());
		} else {
			stored += merge(from, loaded, catalog, newer_wins);
		}
	}
	return stored;
}

catalog_t &xmc_file_loader::merging::catalog_of(catalog_map &map, ustring8 const &name) {
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

types::uint32 xmc_file_loader::merging::merge(xmc_file_loader const &loader, catalog_t const &from, catalog_t &to,
                                              tie at_tie) {
	types::uint32 stored = 0;
	from.m_storage->visit([&](auto const &message) {
		types::uint32 const weight = loader.get_locale_weight(ustring8(message.locale()));
		auto const yields = [&](std::string_view locale) {
			types::uint32 const there = loader.get_locale_weight(ustring8(locale));
			return there < weight || (there == weight && at_tie == newer_wins);
		};
		if (to.m_storage->offer(message, yields)) {
			to.m_languages.clear();
			++stored;
		}
	});
	return stored;
}

types::uint32 xmc_file_loader::combine_data(catalog_map &target) {
	return merging::copy(*this, target);
}

} // namespace QUOR_2_9::i18n::_private
