#include "platform/errors/VbError.h"

#include <map>
#include <new>

using namespace Qt::StringLiterals;

namespace {

// The texts the French runtime and database engine give for the numbers this program can meet.
const std::map<int, const char*>& catalogue() {
    static const std::map<int, const char*> textes = {
        {3, "Return sans GoSub"},
        {5, "Argument ou appel de procédure incorrect"},
        {6, "Dépassement de capacité"},
        {7, "Mémoire insuffisante"},
        {9, "L'indice n'appartient pas à la sélection"},
        {11, "Division par zéro"},
        {13, "Type incompatible"},
        {28, "Espace pile insuffisant"},
        {51, "Erreur interne"},
        {52, "Nom ou numéro de fichier incorrect"},
        {53, "Fichier introuvable"},
        {54, "Mode d'accès au fichier incorrect"},
        {55, "Fichier déjà ouvert"},
        {57, "Erreur d'entrée/sortie sur un périphérique"},
        {58, "Ce fichier existe déjà"},
        {61, "Disque plein"},
        {62, "L'entrée dépasse la fin de fichier"},
        {67, "Trop de fichiers"},
        {68, "Périphérique non disponible"},
        {70, "Permission refusée"},
        {71, "Disque non prêt"},
        {74, "Impossible de renommer avec un lecteur différent"},
        {75, "Erreur d'accès au chemin/fichier"},
        {76, "Chemin introuvable"},
        {91, "Variable objet ou variable de bloc With non définie"},
        {94, "Utilisation incorrecte de Null"},
        {380, "Valeur de propriété incorrecte"},
        {424, "Objet requis"},
        {481, "Image incorrecte"},
        {3001, "Argument non valide."},
        {3020, "Update ou CancelUpdate sans AddNew ou Edit."},
        {3021, "Aucun enregistrement en cours."},
        {3022, "Les modifications que vous avez demandées n'ont pas été effectuées car elles créeraient des "
               "valeurs en double dans l'index, la clé primaire ou la relation. Modifiez les données du ou "
               "des champs contenant des valeurs en double, supprimez l'index ou redéfinissez-le pour "
               "permettre les valeurs en double, et réessayez."},
        {3024, "Fichier '|' introuvable."},
        {3026, "Espace disque insuffisant."},
        {3027, "Impossible de mettre à jour. Base de données ou objet en lecture seule."},
        {3031, "Mot de passe non valide."},
        {3034, "Vous avez tenté de valider ou d'annuler une transaction sans l'avoir commencée."},
        {3043, "Erreur de disque ou de réseau."},
        {3044, "'|' n'est pas un chemin d'accès valide. Assurez-vous que le chemin d'accès est correctement "
               "orthographié."},
        {3045, "Impossible d'utiliser '|'; fichier déjà utilisé."},
        {3049, "Impossible d'ouvrir la base de données '|'. Il se peut qu'elle ne soit pas une base de "
               "données reconnue ou que le fichier soit endommagé."},
        {3051, "Le moteur de base de données ne peut pas ouvrir le fichier '|'. Il est déjà ouvert en mode "
               "exclusif par un autre utilisateur, ou vous devez avoir l'autorisation de visualiser ses "
               "données."},
        {3061, "Trop peu de paramètres. | attendu."},
        {3065, "Impossible d'exécuter une requête Sélection."},
        {3070, "Le moteur de base de données ne reconnaît pas '|' comme un nom de champ ou une expression "
               "correcte."},
        {3075, "Erreur de syntaxe (opérateur absent) dans l'expression '|'."},
        {3077, "Erreur de syntaxe (opérateur absent) dans l'expression."},
        {3078, "Le moteur de base de données ne peut pas trouver la table ou la requête source '|'."},
        {3159, "Signet incorrect."},
        {3163, "Le champ est trop petit pour accepter le volume de données que vous avez tenté d'ajouter. "
               "Essayez d'insérer ou de coller moins de données."},
        {3167, "L'enregistrement est supprimé."},
        {3197, "Un autre utilisateur a modifié cette fiche depuis que vous l'avez affichée : vos "
               "modifications n'ont pas été enregistrées. Cliquez sur Rafraîchir pour voir la fiche telle "
               "qu'elle est enregistrée, puis refaites vos modifications."},
        {3204, "La base de données existe déjà."},
        {3219, "Opération non valide."},
        {3251, "Opération non supportée pour ce type d'objet."},
        {3260, "Mise à jour impossible ; la base est actuellement verrouillée par un autre utilisateur."},
        {3265, "Élément non trouvé dans cette collection."},
        {3314, "Le champ '|' ne peut pas contenir une valeur Null car la propriété Required de ce champ "
               "est True. Entrez une valeur dans ce champ."},
        {3343, "Format de base de données '|' non reconnu."},
        {3420, "Objet incorrect ou plus défini."},
        {3421, "Erreur de conversion de type de données."},
        {3426, "Cette action a été annulée par un objet associé."},
        {3464, "Type de données incompatible dans l'expression du critère."},
    };
    return textes;
}

const QString texte_inconnu = u"Erreur définie par l'application ou par l'objet"_s;

// Fills each '|' with the next value; a quoted place left without a value goes with its quotes.
QString remplir(QString modèle, const QStringList& valeurs) {
    QString résultat;
    int suivante = 0;
    for (int i = 0; i < modèle.size(); ++i) {
        if (modèle[i] != u'|') {
            résultat += modèle[i];
            continue;
        }
        if (suivante < valeurs.size()) {
            résultat += valeurs[suivante++];
            continue;
        }
        const bool entre_quotes = résultat.endsWith(u'\'') && i + 1 < modèle.size() && modèle[i + 1] == u'\'';
        if (entre_quotes) {
            résultat.chop(1);
            ++i;
            if (résultat.endsWith(u' ') && i + 1 < modèle.size() && modèle[i + 1] == u' ')
                résultat.chop(1);
        }
    }
    return résultat;
}

} // namespace

VbError::VbError(int number, QString description)
    : std::runtime_error(description.toStdString()), number_(number), description_(std::move(description)) {}

VbError::VbError(int number) : VbError(number, error_text(number)) {}

VbError VbError::avec(int number, const QStringList& valeurs) {
    return VbError(number, error_text(number, valeurs));
}

QString error_text(int number, const QStringList& valeurs) {
    const auto it = catalogue().find(number);
    if (it == catalogue().end())
        return texte_inconnu;
    return remplir(QString::fromUtf8(it->second), valeurs);
}

bool error_known(int number) {
    return catalogue().contains(number);
}

VbError vb_error_from(const std::exception& e) {
    if (const auto* vb = dynamic_cast<const VbError*>(&e))
        return *vb;
    if (dynamic_cast<const std::bad_alloc*>(&e))
        return VbError(7);
    return VbError(51);
}
