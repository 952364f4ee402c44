#include <quor/config/enviroment_item.hpp>

namespace QUOR_2_9::config {

enviroment_item::enviroment_item(char const *const *envp) : m_envp(envp) {
	item_id = "enviroment";
}

enviroment_item::enviroment_item(enviroment_item const &other) : base_config_item(other), m_envp(other.m_envp) {
	item_id = "enviroment";
}

enviroment_item::~enviroment_item() = default;

enviroment_item &enviroment_item::operator=(enviroment_item const &other) = default;

bool enviroment_item::load() {
	if (m_envp != nullptr) {
		for (char const *const *entry = m_envp; *entry != nullptr; ++entry) {
			set(strings::ustring8(*entry), 0);
		}
	}
	return true;
}

void enviroment_item::unload() {
	item_tree.erase();
}

enviroment_item *enviroment_item::clone() const {
	return generic::abilities::create_dynamic<enviroment_item>(*this);
}

char const *const *enviroment_item::get_envp() const noexcept {
	return m_envp;
}

} // namespace QUOR_2_9::config
