// The application object as others see it: a hub that hands out whichever of its services answers.
#pragma once

#include "host/ref.h"

#include <vector>

namespace standin {

class ServiceHub : public CKWUnknownImpl<IKWUnknown> {
public:
    // The first service that answers wins.
    void add(Ref<IKWUnknown> service) { services.push_back(std::move(service)); }
    void withhold(const std::type_info& type) { withheld.push_back(&type); }

protected:
    int internalQueryInterface(const std::type_info& type, void** out) override;

private:
    std::vector<Ref<IKWUnknown>> services;
    std::vector<const std::type_info*> withheld;
};

} // namespace standin
