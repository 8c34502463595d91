#pragma once

// The three commands that empty tables of the work database, each behind three questions:
// "Initialisation de la table des familles", "... des élèves" and "Initialisation des tables connexes".
// Open screens are left as they are: they show what they had read until the user reopens them.
void menuutilitairesindex1_Click();
void menuutilitairesindex2_Click();
void menuutilitairesindex3_Click();
