#ifndef QUOR_SRC_I18N_XMC_TEXT_BEING_READ_HPP
#define QUOR_SRC_I18N_XMC_TEXT_BEING_READ_HPP

#include <map>
#include <string_view>

#include <quor/export.hpp>
#include <quor/i18n/xmc_file_loader.hpp>

#include "i18n/message_storage.hpp"
#include "i18n/xmc_merging.hpp"
#include "parser/token_reader.hpp"

namespace QUOR_2_9::i18n::_private {

// A text that a loader is reading. Of a text that isn't well-formed nothing stays, which is
// known at its end: until then its catalogs are kept apart.
class QUOR_LOCAL xmc_file_loader::text_being_read {
public:
	text_being_read(xmc_file_loader &loader, std::string_view text)
	    : m_loader(loader), m_outer(loader.m_text_being_read), m_text(text) {
		m_loader.m_text_being_read = this;
	}
	~text_being_read() { m_loader.m_text_being_read = m_outer; }
	text_being_read(text_being_read const &) = delete;
	text_being_read &operator=(text_being_read const &) = delete;

	catalog_t &catalog(strings::ustring8 const &name) {
		return m_is_settled ? m_loader.m_catalogs[name] : m_catalogs[name];
	}

	// Looks through the whole text, as what it includes is read before its end.
	void check() {
		if (!m_is_settled) {
			parser::token_reader tokens(m_text);
			tokens.begin();
			tokens.finish();
			settle();
		}
	}

	// To be called when the text is known to be well-formed: its catalogs become the loader's.
	void settle() {
		m_is_settled = true;
		for (auto &[name, read] : m_catalogs) {
			catalog_t &to = m_loader.m_catalogs[name];
			if (to.size() == 0) {
				to.m_storage.swap(read.m_storage);
			} else {
				merging::merge(m_loader, read, to, merging::first_stays);
			}
		}
		m_catalogs.clear();
	}

private:
	xmc_file_loader &m_loader;
	text_being_read *m_outer;
	std::string_view m_text;
	std::map<strings::ustring8, catalog_t> m_catalogs;
	bool m_is_settled = false;
};

} // namespace QUOR_2_9::i18n::_private

#endif
