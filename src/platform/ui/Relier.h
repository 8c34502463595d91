#pragma once

#include "platform/ui/ErrorBoxes.h"

#include <QObject>
#include <cstddef>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

namespace relier_détail {

// A receiver's method as a callable that takes what the method takes, so that the number of the
// signal's arguments it wants can be found out as for any other callable.
template <class R, class M> struct Méthode {
    R* objet;
    M méthode;
    template <class... A>
    auto operator()(A&&... a) const -> decltype(std::invoke(méthode, objet, std::forward<A>(a)...)) {
        return std::invoke(méthode, objet, std::forward<A>(a)...);
    }
};

template <class H, class Arguments, std::size_t... I> constexpr bool prend(std::index_sequence<I...>) {
    return std::is_invocable_v<H&, decltype(std::get<I>(std::declval<Arguments&>()))...>;
}

// Calls the handler with as many of the signal's first arguments as it takes, as connect does.
template <class H, class Arguments, std::size_t N = std::tuple_size_v<Arguments>>
void appeler(H& handler, Arguments& arguments) {
    if constexpr (prend<H, Arguments>(std::make_index_sequence<N>{})) {
        [&]<std::size_t... I>(std::index_sequence<I...>) {
            std::invoke(handler, std::get<I>(arguments)...);
        }
        (std::make_index_sequence<N>{});
    } else if constexpr (N > 0) {
        appeler<H, Arguments, N - 1>(handler, arguments);
    } else {
        static_assert(N > 0, "the handler cannot be called with the signal's arguments");
    }
}

} // namespace relier_détail

// Connects a handler to a signal as QObject::connect does, inside the net of avec_filet: a failure the
// handler does not trap is shown right there with the untrapped-failure box, and never unwinds through
// Qt's signal dispatch. `handler` is a callable or a method of `receiver`, and may take fewer
// arguments than the signal carries; the connection ends with the receiver, as connect's does.
template <class Sender, class Signal, class Receiver, class Handler>
QMetaObject::Connection relier(const Sender* sender, Signal signal, Receiver* receiver, Handler handler,
                               Qt::ConnectionType type = Qt::AutoConnection) {
    auto appelable = [&] {
        if constexpr (std::is_member_function_pointer_v<Handler>)
            return relier_détail::Méthode<Receiver, Handler>{receiver, handler};
        else
            return std::move(handler);
    }();
    return QObject::connect(
        sender, signal, receiver,
        [appelable = std::move(appelable)](auto&&... valeurs) mutable {
            auto arguments = std::forward_as_tuple(valeurs...);
            avec_filet([&] { relier_détail::appeler(appelable, arguments); });
        },
        type);
}
