#include "EB.h"

#include "Platform.h"

EB::EB(QObject *parent) : QObject(parent)
{
    connect(&Platform::current().appearance(), &Appearance::changed, this, &EB::appearanceChanged);
}

bool EB::reduceMotion() const
{
    return Platform::current().appearance().shouldReduceMotion();
}
