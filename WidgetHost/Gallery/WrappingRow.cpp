#include "WidgetHost/Gallery/WrappingRow.h"

#include <algorithm>
#include <gtkmm.h>

namespace orvel {

namespace {

class WrappingRow final : public Gtk::Box {
public:
    WrappingRow(int gap, int rowGap) : m_gap(gap), m_rowGap(rowGap) { }

protected:
    Gtk::SizeRequestMode get_request_mode_vfunc() const override { return Gtk::SIZE_REQUEST_HEIGHT_FOR_WIDTH; }

    void get_preferred_width_vfunc(int& least, int& natural) const override
    {
        least = natural = 0;
        for (const auto* child : get_children()) {
            const auto width = naturalWidth(*child);
            least = std::max(least, leastWidth(*child));
            natural += width + (natural > 0 ? m_gap : 0);
        }
    }

    void get_preferred_width_for_height_vfunc(int, int& least, int& natural) const override
    {
        get_preferred_width_vfunc(least, natural);
    }

    void get_preferred_height_for_width_vfunc(int width, int& least, int& natural) const override
    {
        least = natural = arranged(width, [](Gtk::Widget&, const Gtk::Allocation&) {});
    }

    void get_preferred_height_vfunc(int& least, int& natural) const override
    {
        int narrow = 0, wide = 0;
        get_preferred_width_vfunc(narrow, wide);
        get_preferred_height_for_width_vfunc(wide, least, natural);
    }

    void on_size_allocate(Gtk::Allocation& allocation) override
    {
        set_allocation(allocation);
        auto clip = allocation;
        const bool isFromTheRight = get_direction() == Gtk::TEXT_DIR_RTL;
        arranged(allocation.get_width(), [&](Gtk::Widget& child, Gtk::Allocation place) {
            if (isFromTheRight)
                place.set_x(allocation.get_width() - place.get_x() - place.get_width());
            place.set_x(place.get_x() + allocation.get_x());
            place.set_y(place.get_y() + allocation.get_y());
            child.size_allocate(place);
            clip.join(child.get_clip()); // shadows and focus rings fall beside the children's places
        });
        set_clip(clip);
    }

    bool on_draw(const Cairo::RefPtr<Cairo::Context>& context) override
    {
        // A box draws itself where it laid itself out, which this one never did.
        for (auto* child : get_children())
            propagate_draw(*child, context);
        return false;
    }

private:
    static int leastWidth(const Gtk::Widget& child)
    {
        int least = 0, natural = 0;
        child.get_preferred_width(least, natural);
        return least;
    }

    static int naturalWidth(const Gtk::Widget& child)
    {
        int least = 0, natural = 0;
        child.get_preferred_width(least, natural);
        return natural;
    }

    static int naturalHeight(const Gtk::Widget& child, int width)
    {
        int least = 0, natural = 0;
        child.get_preferred_height_for_width(width, least, natural);
        return natural;
    }

    struct Placed {
        Gtk::Widget* child;
        Gtk::Allocation place;
    };

    /// Places the children as if from the left and gives the whole height.
    template <typename Place>
    int arranged(int width, Place&& placeChild) const
    {
        std::vector<Placed> row;
        int x = 0, y = 0, rowHeight = 0;
        const auto endRow = [&] {
            for (auto& [child, place] : row) {
                if (get_valign() == Gtk::ALIGN_CENTER)
                    place.set_height(rowHeight); // in it the child stands in the middle
                placeChild(*child, place);
            }
            row.clear();
        };
        // The children are asked for without `const`: allocating changes them, never the row.
        for (auto* child : const_cast<WrappingRow*>(this)->get_children()) {
            if (!child->get_visible())
                continue;
            const auto childWidth = std::min(naturalWidth(*child), std::max(width, leastWidth(*child)));
            if (!row.empty() && x + m_gap + childWidth > width) {
                endRow();
                y += rowHeight + m_rowGap;
                x = rowHeight = 0;
            }
            const auto height = naturalHeight(*child, childWidth);
            const auto left = row.empty() ? 0 : x + m_gap;
            row.push_back({ child, { left, y, childWidth, height } });
            x = left + childWidth;
            rowHeight = std::max(rowHeight, height);
        }
        endRow();
        return y + rowHeight;
    }

    int m_gap;
    int m_rowGap;
};

}

Gtk::Box& makeWrappingRow(int gap, int rowGap)
{
    return *Gtk::make_managed<WrappingRow>(gap, rowGap);
}

}
