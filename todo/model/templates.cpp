// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/templates.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Template = Templates::Template;

ToDoItem on(int days, const QString &text)
{
    return {.offset = days, .text = text};
}

ToDoItem plain(const QString &text)
{
    return {.text = text};
}

ToDoItem step(const QString &text)
{
    return {.level = ItemLevel::Step, .text = text};
}

ToDoItem heading(const QString &text)
{
    return {.level = ItemLevel::Heading, .text = text};
}

/// The day is that of leaving.
Template trip()
{
    return {ListKind::Plain,
            u"Before a trip"_s,
            {on(-60, u"Check the passports"_s), on(-30, u"Book tickets and rooms"_s),
             on(-14, u"Ask a neighbor to look after the house"_s), step(u"Water the plants"_s),
             step(u"Take in the mail"_s), on(-14, u"Order medicine"_s), on(-7, u"Check the car"_s),
             on(-3, u"Do the laundry"_s), on(-2, u"Change money"_s), on(-1, u"Pack"_s), step(u"Chargers"_s),
             step(u"Medicine"_s), step(u"Tickets and passports"_s), on(-1, u"Take out the trash"_s),
             on(0, u"Turn down the heating, turn off the water"_s), on(0, u"Lock the windows and doors"_s)}};
}

/// The day is that of the guests.
Template guests()
{
    return {ListKind::Plain,
            u"Guests"_s,
            {on(-14, u"Invite"_s), on(-7, u"Ask who does not eat what"_s), on(-5, u"Plan the meals"_s),
             on(-2, u"Do the shopping"_s), on(-2, u"Make the spare beds"_s), on(-1, u"Clean the bathroom"_s),
             on(-1, u"Put out towels"_s), on(-1, u"Cook ahead"_s), on(0, u"Lay the table"_s)}};
}

/// The day is the first one.
Template springCleaning()
{
    return {ListKind::Plain,
            u"Spring cleaning"_s,
            {heading(u"Whole house"_s), on(0, u"Wash the windows"_s), on(0, u"Wash the curtains"_s),
             on(1, u"Dust lamps and shelves"_s), heading(u"Kitchen"_s), on(2, u"Clean the oven"_s),
             on(2, u"Empty and wipe the refrigerator"_s), on(2, u"Go through the pantry"_s),
             heading(u"Bedrooms"_s), on(3, u"Turn the mattresses"_s), on(3, u"Put the winter clothes away"_s),
             heading(u"Outside"_s), on(7, u"Clean the gutters"_s), on(7, u"Sweep the terrace"_s)}};
}

/// The day is when the cold is expected.
Template winterCheck()
{
    return {ListKind::Plain,
            u"Winter check"_s,
            {on(-42, u"Call the chimney sweep"_s), on(-42, u"Have the heating serviced"_s),
             on(-28, u"Order firewood"_s), on(-21, u"Change to winter tires"_s),
             on(-14, u"Clean the gutters"_s), on(-14, u"Shut off and drain the outside taps"_s),
             on(-7, u"Check the window seals"_s), on(-7, u"Test the smoke detectors"_s),
             on(-7, u"Put salt and the snow shovel ready"_s)}};
}

/// The day is when the return is due.
Template taxPapers()
{
    return {ListKind::Plain,
            u"Tax papers"_s,
            {on(-60, u"Collect the papers"_s), step(u"Wages"_s), step(u"Bank statements"_s),
             step(u"Insurance"_s), step(u"Donations"_s), step(u"Medical bills"_s),
             on(-30, u"Ask for what is missing"_s), on(-21, u"Fill in the return"_s),
             on(-14, u"Have somebody else read it"_s), on(-7, u"Send it and keep a copy"_s),
             on(0, u"Pay what is due"_s)}};
}

Template shopping()
{
    return {ListKind::Shopping,
            u"Shopping"_s,
            {heading(u"Fruit and vegetables"_s), plain(u"Apples"_s), plain(u"Potatoes"_s), plain(u"Onions"_s),
             heading(u"Bread"_s), plain(u"Bread"_s), heading(u"Dairy"_s), plain(u"Milk"_s),
             plain(u"Butter"_s), plain(u"Cheese"_s), plain(u"Eggs"_s), heading(u"Pantry"_s),
             plain(u"Coffee"_s), plain(u"Flour"_s), plain(u"Pasta"_s), heading(u"Household"_s),
             plain(u"Dish soap"_s), plain(u"Toilet paper"_s)}};
}

} // namespace

const std::vector<Template> &Templates::all()
{
    static const std::vector<Template> templates{trip(),        guests(),    springCleaning(),
                                                 winterCheck(), taxPapers(), shopping()};
    return templates;
}
