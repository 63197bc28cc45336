#pragma once

#include <algorithm>

#include "solvers/OPTMZR/search_route.h"

namespace vantore::optmzr {

/// The small changes of one route or of two. Each function offers to `accept`, one after the other, what the
/// routes would become, and ends with true once an offer is taken. `i` is the position of a stop in route
/// `a`; `j` a position in route `b`, or in the same one, behind which the stop is to come: 0 for the depot.
/// Source: Vidal, "Hybrid genetic search for the CVRP: open-source implementation and SWAP* neighborhood"
/// (2022); Taillard et al., "A tabu search heuristic for the vehicle routing problem with soft time windows"
/// (1997) for the exchanged runs.

constexpr int longestRun = 3;      ///< of stops that are moved together
constexpr int longestExchange = 2; ///< of stops that are exchanged together

/// One to three stops from `i` on to behind `j`, in their order or turned round.
template <class Accept>
bool relocate(const SearchRoute& a, int i, const SearchRoute& b, int j, const Accept& accept) {
    for (int last = i; last < i + longestRun && last <= a.size(); ++last) {
        Splice rest;
        rest.forward(a, 1, i - 1).forward(a, last + 1, a.size());
        Splice with;
        with.forward(b, 1, j).forward(a, i, last).forward(b, j + 1, b.size());
        if (accept(rest, with)) return true;
        if (last == i) continue;
        Splice reversed;
        reversed.forward(b, 1, j).backward(a, last, i).forward(b, j + 1, b.size());
        if (accept(rest, reversed)) return true;
    }
    return false;
}

/// The same within one route.
template <class Accept>
bool relocateWithin(const SearchRoute& a, int i, int j, const Accept& accept) {
    for (int last = i; last < i + longestRun && last <= a.size(); ++last) {
        if (j >= i && j <= last) return false;
        for (const bool isReversed : {false, true}) {
            if (isReversed && last == i) continue;
            Splice moved;
            moved.forward(a, 1, std::min(j, i - 1)).forward(a, last + 1, j);
            isReversed ? moved.backward(a, last, i) : moved.forward(a, i, last);
            moved.forward(a, j + 1, i - 1).forward(a, std::max(j, last) + 1, a.size());
            if (accept(moved)) return true;
        }
    }
    return false;
}

/// One or two stops from `i` on for one or two behind `j`.
template <class Accept>
bool exchange(const SearchRoute& a, int i, const SearchRoute& b, int j, const Accept& accept) {
    for (int mine = 1; mine <= longestExchange && i + mine - 1 <= a.size(); ++mine) {
        for (int theirs = 1; theirs <= longestExchange && j + theirs <= b.size(); ++theirs) {
            Splice newA;
            newA.forward(a, 1, i - 1).forward(b, j + 1, j + theirs).forward(a, i + mine, a.size());
            Splice newB;
            newB.forward(b, 1, j).forward(a, i, i + mine - 1).forward(b, j + theirs + 1, b.size());
            if (accept(newA, newB)) return true;
        }
    }
    return false;
}

/// One or two stops up to `i` for one or two before `j`, so that the stop comes before the other.
template <class Accept>
bool exchangeBefore(const SearchRoute& a, int i, const SearchRoute& b, int j, const Accept& accept) {
    for (int mine = 1; mine <= longestExchange && i - mine >= 0; ++mine) {
        for (int theirs = 1; theirs <= longestExchange && j - theirs >= 1; ++theirs) {
            Splice newA;
            newA.forward(a, 1, i - mine).forward(b, j - theirs, j - 1).forward(a, i + 1, a.size());
            Splice newB;
            newB.forward(b, 1, j - theirs - 1).forward(a, i - mine + 1, i).forward(b, j, b.size());
            if (accept(newA, newB)) return true;
        }
    }
    return false;
}

/// The stops at `i` and at `j`, of one route, for each other.
template <class Accept>
bool exchangeWithin(const SearchRoute& a, int i, int j, const Accept& accept) {
    if (j < 1 || i == j) return false;
    const int first = std::min(i, j);
    const int second = std::max(i, j);
    Splice exchanged;
    exchanged.forward(a, 1, first - 1).forward(a, second, second).forward(a, first + 1, second - 1);
    exchanged.forward(a, first, first).forward(a, second + 1, a.size());
    return accept(exchanged);
}

/// 2-opt*: the tail from `i` on for the tail behind `j`; or the head up to `i` is joined to the head up to
/// `j`, and the two tails to each other.
template <class Accept>
bool exchangeTails(const SearchRoute& a, int i, const SearchRoute& b, int j, const Accept& accept) {
    Splice newA;
    newA.forward(a, 1, i - 1).forward(b, j + 1, b.size());
    Splice newB;
    newB.forward(b, 1, j).forward(a, i, a.size());
    if (accept(newA, newB)) return true;
    Splice heads;
    heads.forward(a, 1, i).backward(b, j, 1);
    Splice tails;
    tails.backward(a, a.size(), i + 1).forward(b, j + 1, b.size());
    return accept(heads, tails);
}

/// 2-opt: the part between the stops at `i` and `j`, of one route, turned round so that they become
/// neighbours.
template <class Accept>
bool reverse(const SearchRoute& a, int i, int j, const Accept& accept) {
    if (j < 1) return false;
    Splice turned;
    if (i < j)
        turned.forward(a, 1, i).backward(a, j, i + 1).forward(a, j + 1, a.size());
    else
        turned.forward(a, 1, j - 1).backward(a, i - 1, j).forward(a, i, a.size());
    return accept(turned);
}

/// 2-opt with the depot: the stops up to `i`, or from it on, turned round.
template <class Accept>
bool reverseEnds(const SearchRoute& a, int i, const Accept& accept) {
    Splice head;
    head.backward(a, i, 1).forward(a, i + 1, a.size());
    if (accept(head)) return true;
    Splice tail;
    tail.forward(a, 1, i - 1).backward(a, a.size(), i);
    return accept(tail);
}

} // namespace vantore::optmzr
