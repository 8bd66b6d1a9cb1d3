#pragma once

// The network library without Boost. Only sources and inner headers of this directory include it,
// so that nobody above needs it.
#ifndef ASIO_STANDALONE
#define ASIO_STANDALONE
#endif
#ifndef ASIO_NO_DEPRECATED
#define ASIO_NO_DEPRECATED
#endif

#include <asio.hpp>
