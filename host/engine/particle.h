// Particles: what a particle shape knows of each of its particles, now and at the start.
#pragma once

#include "node.h"

#include <cstddef>
#include <vector>

namespace tvxhost::engine {

/// An attribute that holds one value per particle: an array of numbers, whole numbers or vectors, either the
/// present state ("mass") or the initial one ("mass0").
bool isPerParticle(const Node& particles, const Attribute& attribute);
/// "mass" → "mass0"; null when the attribute has no initial state.
Attribute* initialStateOf(const Node& particles, const Attribute& state);
/// The attributes of the present state, built-in ones first.
std::vector<Attribute*> particleState(const Node& particles);

/// Particles that there are now: as many as there are positions.
std::size_t particleCount(Node& particles);
/// Adds particles to the present state: new ids, age 0, mass 1, no acceleration; what else there is per
/// particle is zero. Velocities may be fewer than positions: the rest rests.
Outcome emitParticles(Node& particles, const std::vector<Vec3d>& positions,
                      const std::vector<Vec3d>& velocities = {});
/// Drops the last particles, or adds some at the origin.
Outcome setParticleCount(Node& particles, std::size_t count);
/// Makes the present state the initial one.
Outcome saveInitialState(Node& particles);

/// Gives particle shapes their code: the present state is the initial one until somebody sets it, and again
/// after the time has changed, since the host moves no particles.
void addParticleBehaviour(TypeTable& types);

} // namespace tvxhost::engine
