#include "base/Failure.h"

namespace etiquetas {

namespace {

Failure ownFailure(std::int32_t number, std::u16string description) {
    return {number, u"Etiquetas", std::move(description)};
}

SkipObserver::Callback& skipCallback() {
    static SkipObserver::Callback callback;
    return callback;
}

} // namespace

Failure typeMismatch() {
    return ownFailure(
        failure_number::type_mismatch,
        u"Tipos incompatíveis: um texto que não é número está no lugar de um número.");
}

Failure overflow() {
    return ownFailure(failure_number::overflow, u"Estouro: um número é grande demais.");
}

Failure subscriptOutOfRange() {
    return ownFailure(failure_number::subscript_out_of_range,
                      u"Subscrito fora do intervalo: um item procurado não existe.");
}

SkipObserver::SkipObserver(Callback told)
    : earlier_(std::exchange(skipCallback(), std::move(told))) {}

SkipObserver::~SkipObserver() {
    skipCallback() = std::move(earlier_);
}

void tellSkipObserver(const Failure& failure) noexcept {
    try {
        if (const auto& callback = skipCallback()) {
            callback(failure);
        }
    } catch (...) {
        return; // the step is over either way
    }
}

} // namespace etiquetas
