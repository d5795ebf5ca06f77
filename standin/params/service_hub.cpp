// The search for an interface among the services.
#include "standin/params/service_hub.h"

#include <algorithm>

namespace standin {

int ServiceHub::internalQueryInterface(const std::type_info& type, void** out) {
    if (CKWUnknownImpl::internalQueryInterface(type, out))
        return 1;
    const bool hidden = std::any_of(withheld.begin(), withheld.end(), [&type](const std::type_info* other) {
        return isInterface(type, *other);
    });
    return !hidden && std::any_of(services.begin(), services.end(), [&type, out](const auto& service) {
        return service->QueryInterface(type, out) != 0;
    });
}

} // namespace standin
