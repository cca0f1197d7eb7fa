#pragma once

namespace Gtk {
class Box;
}

namespace orvel {

/// A box for widgets side by side, each in its natural size, which go on in the next row where there is no more room.
/// It has no style of its own, and
/// belongs to whatever it is put into.
Gtk::Box& makeWrappingRow(int gap, int rowGap);

}
